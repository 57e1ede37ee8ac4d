#include "store/CategoryFiles.h"

#include "store/RecordReader.h"

namespace emporium {

CategoryFile ReadCategoryFile(const Disk& disk, std::string_view name) {
    FileText text{
        FileText::State::Unreadable, {}, std::make_error_code(std::errc::invalid_argument)};
    if (IsPlainName(name) && !IsOwnFile(name))
        text = disk.files.read(CategoryPath(disk.folders, name), LargestFile);
    CategoryFile file{
        text.state, text.reason, std::make_shared<const std::string>(std::move(text.bytes)), {}};
    RecordReader reader(*file.bytes);
    for (RecordView record; file.records.size() < MaxRows && reader.Next(record);)
        file.records.push_back(record);
    RecordView next;
    file.goesOn = file.records.size() == MaxRows && reader.Next(next);
    file.cutOff = reader.CutOff();
    return file;
}

} // namespace emporium
