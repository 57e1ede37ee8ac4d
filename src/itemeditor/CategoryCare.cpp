#include "itemeditor/CategoryCare.h"

#include "itemeditor/CategoryChoice.h"
#include "itemeditor/CategoryDropDowns.h"
#include "store/CategoryFaults.h"
#include "store/CategoryList.h"
#include "store/CategoryRefusal.h"
#include "store/WriteTurn.h"

#include <algorithm>

namespace emporium {

namespace {

constexpr std::string_view NotCreated = "Die Kategorie konnte nicht angelegt werden.";
constexpr std::string_view NotDeleted = "Die Kategorie konnte nicht gelöscht werden."_ansi;

Outcome Refused(std::string_view what, std::string_view why) {
    return {false, std::string(what) + "\n\n" + std::string(why)};
}

// Writes the new list and what becomes of the category's file, and shows the list's names.
Outcome WriteList(ItemEditor& editor, const Disk& disk, const CategoryList& list,
                  std::string_view name, std::optional<std::string> contents,
                  std::string_view what) {
    Outcome outcome = WriteChanges(disk,
                                   {{CategoryListPath(disk.folders), list.bytes},
                                    {CategoryPath(disk.folders, name), std::move(contents)}},
                                   what);
    if (outcome.stands)
        SetCategoryNames(editor, list.names);
    return outcome;
}

// The caller has the turn. A refusal of the name alone leaves the user to choose another one.
Outcome Create(ItemEditor& editor, const Disk& disk, const std::string& name, bool& askAgain) {
    const CategoryList list = ReadCategoryNames(disk);
    if (const auto fault = CategoryListFault(list); !fault.empty())
        return Refused(NotCreated, fault);
    std::string refusal = CategoryNameRefusal(disk, list.names, name);
    askAgain = !refusal.empty();
    if (askAgain)
        return {false, std::move(refusal)};
    return WriteList(editor, disk, WithCategory(list, name), name, std::string(), NotCreated);
}

// Whether the category's file can go.
Outcome Removable(const Disk& disk, const std::string& name) {
    const CategoryFile present = ReadCategoryFile(disk, name);
    if (present.state == FileText::State::Unreadable)
        return {false, FailureText(NotDeleted, {CategoryPath(disk.folders, name), present.reason})};
    if (!present.records.empty() || present.cutOff)
        return {false, CategoryLine(name, "Diese Kategorie ist nicht mehr leer, denn ein anderes "
                                          "Programm hat ihre Datei geändert. Sie wird nicht "
                                          "gelöscht. Wählt sie noch einmal, um den neuen Stand "
                                          "zu sehen."_ansi)};
    return {true, {}};
}

// The caller has the turn.
Outcome Delete(ItemEditor& editor, const Disk& disk, const std::string& name) {
    const CategoryList list = ReadCategoryNames(disk);
    if (const auto fault = CategoryListFault(list); !fault.empty())
        return Refused(NotDeleted, fault);
    if (Outcome removable = Removable(disk, name); !removable.stands)
        return removable;
    return WriteList(editor, disk, WithoutCategory(list, name), name, std::nullopt, NotDeleted);
}

// The fixed categories and those whose files are there.
std::error_code FindCategories(const Disk& disk, std::vector<std::string>& names) {
    std::vector<std::filesystem::path> entries;
    const auto error = disk.files.entries(disk.folders.EmporiumFolder(), entries);
    names.assign(FixedCategories().begin(), FixedCategories().end());
    for (const auto& file : entries) {
        const std::string name = FromPath(file.stem());
        if (file.extension() == CategoryEnding && IsPlainName(name) && !IsOwnFile(name) &&
            name != AllCategories && std::find(names.begin(), names.end(), name) == names.end())
            names.push_back(name);
    }
    std::sort(names.begin() + static_cast<std::ptrdiff_t>(FixedCategories().size()), names.end());
    return error;
}

std::string ListText(const std::vector<std::string>& names) {
    std::string text = " " + std::to_string(names.size()) + " \r\n";
    for (const std::string& name : names)
        text += name + "\r\n";
    return text;
}

// The caller has the turn. A list that another program has made meanwhile stays.
Outcome MakeListAnew(ItemEditor& editor, const Disk& disk) {
    CategoryList list = ReadCategoryNames(disk);
    if (list.state == FileText::State::Absent) {
        if (const auto error = FindCategories(disk, list.names))
            return {false, FailureText(NotCreated, {disk.folders.EmporiumFolder(), error})};
        Outcome written = WriteChanges(
            disk, {{CategoryListPath(disk.folders), ListText(list.names)}}, NotCreated);
        if (!written.stands)
            return written;
        list.names.resize(std::min<std::size_t>(list.names.size(), MaxRows)); // as when read
    } else if (const auto fault = CategoryListFault(list); !fault.empty()) {
        return Refused(NotCreated, fault);
    }
    SetCategoryNames(editor, list.names);
    return {true, {}};
}

// The change of the list in one turn; false if it does not stand.
bool Change(ItemEditor& editor, const Platform& platform, const std::function<Outcome()>& change) {
    const Outcome outcome = InTurn(platform.disk, change);
    UpdateItemButtons(editor);
    return Tell(platform, outcome);
}

// False if there is no list and the user does not want one.
bool EnsureList(ItemEditor& editor, const Platform& platform) {
    if (ReadCategoryNames(platform.disk).state != FileText::State::Absent)
        return true;
    return platform.AskYesNo(
               {std::string("Die Liste der Kategorien fehlt. Soll sie neu angelegt werden, mit den "
                            "drei festen Kategorien und allen, deren Dateien da sind?"_ansi)}) &&
           Change(editor, platform, [&] { return MakeListAnew(editor, platform.disk); });
}

} // namespace

void NewCategory(ItemEditor& editor, const Platform& platform) {
    if (!EnsureList(editor, platform))
        return;
    for (bool askAgain = true; askAgain;) {
        askAgain = false;
        const std::string name = platform.AskText("Bitte gebt der Kategorie einen Namen.", {});
        if (name.empty())
            return;
        const bool stands =
            Change(editor, platform, [&] { return Create(editor, platform.disk, name, askAgain); });
        if (stands && editor.cmbKategorien.Text() == AllCategories)
            editor.viewFiles.push_back({name, std::make_shared<const std::string>(), true});
    }
}

void DeleteCategory(ItemEditor& editor, const Platform& platform) {
    const std::string name = editor.cmbKategorien.Text();
    if (!platform.AskYesNo(
            {std::string("Soll die gewählte Kategorie wirklich gelöscht werden ?"_ansi)}))
        return;
    const int file = ViewFileOf(editor, name);
    if (file >= 0 && !editor.FileAt(file).canBeWritten) {
        platform.ShowMessage(
            CategoryLine(name, "Diese Kategorie konnte nicht vollständig gelesen werden, deshalb "
                               "wird sie nicht gelöscht."_ansi));
        return;
    }
    Change(editor, platform, [&] {
        Outcome outcome = Delete(editor, platform.disk, name);
        if (outcome.stands)
            ResetView(editor);
        return outcome;
    });
}

} // namespace emporium
