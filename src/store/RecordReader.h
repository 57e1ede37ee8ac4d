// Reading the records of a category file's text.
#pragma once

#include "store/ItemRecord.h"
#include "text/LineReader.h"

namespace emporium {

/// The records of a category file's text, one after the other.
class RecordReader {
public:
    /// The text must outlive the reader and the records that it gave.
    explicit RecordReader(std::string_view text) : lines_(text) {}

    /// The next whole record; false behind the last one.
    bool Next(RecordView& record);

    /// True if lines that are not empty were left over behind the last whole record.
    bool CutOff() const { return cutOff_; }

private:
    LineReader lines_;
    bool cutOff_ = false;
};

} // namespace emporium
