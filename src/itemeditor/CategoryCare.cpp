#include "itemeditor/CategoryCare.h"

#include "files/FileWriting.h"
#include "itemeditor/CategoryChoice.h"
#include "store/CategoryList.h"
#include "store/CategoryRefusal.h"
#include "store/WriteTurn.h"

#include <algorithm>

namespace emporium {

namespace {

constexpr std::string_view NotCreated = "Die Kategorie konnte nicht angelegt werden.";
constexpr std::string_view NotDeleted = "Die Kategorie konnte nicht gelöscht werden."_ansi;

// What a try to change the list and a category's file came to. The text is for a box that opens
// when the turn is over.
struct Attempt {
    bool stands = false;
    std::string text;
    std::vector<std::string> names; // of the list, if the change stands
};

Attempt Refused(std::string_view what, std::string_view why) {
    return {false, std::string(what) + "\n\n" + std::string(why), {}};
}

// Writes the list's new text and what becomes of the category's file.
Attempt WriteCategory(const Disk& disk, std::string_view name, std::string listText,
                      std::optional<std::string> contents, std::string_view what,
                      std::vector<std::string> names) {
    const auto result = WriteFiles(disk.files, disk.folders.EmporiumFolder(),
                                   {{CategoryListPath(disk.folders), std::move(listText)},
                                    {CategoryPath(disk.folders, name), std::move(contents)}});
    if (!result.stands)
        return {false, FailureText(what, *result.failure), {}};
    return {true, result.failure ? StillToCome(*result.failure) : std::string(), std::move(names)};
}

// A refusal of the name alone leaves the user to choose another one.
Attempt Create(const Disk& disk, const std::string& name, bool& askAgain) {
    const WriteTurn turn = TakeTurn(disk);
    if (!turn.refusal.empty())
        return {false, turn.refusal, {}};
    CategoryList list = ReadCategoryNames(disk);
    if (const auto fault = CategoryListFault(list); !fault.empty())
        return Refused(NotCreated, fault);
    std::string refusal = CategoryNameRefusal(disk, list.names, name);
    askAgain = !refusal.empty();
    if (askAgain)
        return {false, std::move(refusal), {}};
    std::string text = WithCategory(list, name);
    list.names.push_back(name);
    Attempt attempt = WriteCategory(disk, name, std::move(text), std::string(), NotCreated,
                                    std::move(list.names));
    attempt.text = AfterTurn(turn, attempt.text);
    return attempt;
}

// Why the category's file stays, empty if it can go.
std::string FileRefusal(const Disk& disk, const std::string& name) {
    const auto path = CategoryPath(disk.folders, name);
    const FileText present = disk.files.read(path);
    if (present.state == FileText::State::Unreadable)
        return FailureText(NotDeleted, {path, present.reason});
    if (!present.bytes.empty())
        return name + std::string(".dat: Diese Kategorie ist nicht mehr leer, denn ein anderes "
                                  "Programm hat ihre Datei geändert. Sie wird nicht gelöscht. "
                                  "Wählt sie noch einmal, um den neuen Stand zu sehen."_ansi);
    return {};
}

Attempt Delete(const Disk& disk, const std::string& name) {
    const WriteTurn turn = TakeTurn(disk);
    if (!turn.refusal.empty())
        return {false, turn.refusal, {}};
    CategoryList list = ReadCategoryNames(disk);
    if (const auto fault = CategoryListFault(list); !fault.empty())
        return Refused(NotDeleted, fault);
    if (auto refusal = FileRefusal(disk, name); !refusal.empty())
        return {false, std::move(refusal), {}};
    std::string text = WithoutCategory(list, name);
    std::erase(list.names, name);
    Attempt attempt =
        WriteCategory(disk, name, std::move(text), std::nullopt, NotDeleted, std::move(list.names));
    attempt.text = AfterTurn(turn, attempt.text);
    return attempt;
}

// The fixed categories and those whose files are there.
std::string ListMadeAnew(const Disk& disk) {
    std::vector<std::string> names(FixedCategories().begin(), FixedCategories().end());
    for (const auto& file : disk.files.entries(disk.folders.EmporiumFolder())) {
        const std::string name = FromPath(file.stem());
        if (file.extension() == ".dat" && IsPlainName(name) && !IsOwnFile(name) &&
            std::find(names.begin(), names.end(), name) == names.end())
            names.push_back(name);
    }
    std::sort(names.begin() + static_cast<std::ptrdiff_t>(FixedCategories().size()), names.end());
    std::string text = " " + std::to_string(names.size()) + " \r\n";
    for (const std::string& name : names)
        text += name + "\r\n";
    return text;
}

Attempt MakeListAnew(const Disk& disk) {
    const WriteTurn turn = TakeTurn(disk);
    if (!turn.refusal.empty())
        return {false, turn.refusal, {}};
    if (ReadCategoryNames(disk).state == FileText::State::Absent) {
        const auto result = WriteFiles(disk.files, disk.folders.EmporiumFolder(),
                                       {{CategoryListPath(disk.folders), ListMadeAnew(disk)}});
        if (result.failure)
            return {false, FailureText(NotCreated, *result.failure), {}};
    }
    return {true, {}, ReadCategoryNames(disk).names};
}

bool Show(ItemEditor& editor, const Platform& platform, const Attempt& attempt) {
    if (attempt.stands)
        SetCategoryNames(editor, attempt.names);
    UpdateItemButtons(editor);
    if (!attempt.text.empty())
        platform.ShowMessage(attempt.text);
    return attempt.stands;
}

// False if there is no list and the user does not want one.
bool EnsureList(ItemEditor& editor, const Platform& platform) {
    if (ReadCategoryNames(platform.disk).state != FileText::State::Absent)
        return true;
    return platform.AskYesNo(
               {std::string("Die Liste der Kategorien fehlt. Soll sie neu angelegt werden, mit den "
                            "drei festen Kategorien und allen, deren Dateien da sind?"_ansi)}) &&
           Show(editor, platform, MakeListAnew(platform.disk));
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
        const Attempt attempt = Create(platform.disk, name, askAgain);
        if (attempt.stands && editor.cmbKategorien.Text() == AllCategories)
            editor.viewFiles.push_back({name, std::make_shared<const std::string>(), true});
        Show(editor, platform, attempt);
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
            name + std::string(".dat: Diese Kategorie konnte nicht vollständig gelesen werden, "
                               "deshalb wird sie nicht gelöscht."_ansi));
        return;
    }
    const Attempt attempt = Delete(platform.disk, name);
    if (attempt.stands)
        ResetView(editor);
    Show(editor, platform, attempt);
}

} // namespace emporium
