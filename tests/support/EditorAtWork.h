// An item editor over a small world of categories, driven through its controls as a user does.
#pragma once

#include "itemeditor/ItemEditor.h"
#include "support/ProgramFolder.h"
#include "support/ScriptedPlatform.h"

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace emporium::test {

class EditorAtWork {
public:
    /// Nahkampfwaffen with one item, Fernwaffen and Abakus without any, Rüstungen with one,
    /// Kleidung with four, Öllampen with two; listed in this order, Abakus last.
    EditorAtWork();

    ProgramFolder program;
    ScriptedPlatform script;
    ItemEditor editor;

    /// Reads the category list, as the start of the program does.
    void ReadList();

    /// Picks a view, or the category in the form.
    void View(std::string_view entry);
    void FormCategory(std::string_view entry);

    /// The first record of that name in the view, -1 if there is none.
    int Find(std::string_view name) const;

    /// Picks the row of that record.
    void Open(int record);
    void Open(std::string_view name) { Open(Find(name)); }

    /// Types and picks all of a record; a mark that is none leaves its list without a choice.
    void Fill(const ItemRecord& record);

    void Save();
    void Delete();
    void Delete(bool answer); // with the question

    /// The names in the list as they stand in it, with a blank between them.
    std::string Rows() const;

    /// The bytes of a category's file.
    std::string File(std::string_view category) const;

    /// All data files by name, and all that the controls and records hold.
    std::map<std::string, std::string> Files() const;
    std::string State() const;
};

/// Runs the act in worlds of their own, each time with the next file operation failing: either a
/// box tells it and files, records and controls stand as before, or all is as without the failure.
void ExpectAllOrNothing(const std::function<void(EditorAtWork&)>& prepare,
                        const std::function<void(EditorAtWork&)>& act);

/// The records as a file holds them.
std::string RecordLines(const std::vector<ItemRecord>& records);

inline constexpr std::string_view MoveQuestion =
    "Ihr habt die Kategorie des Gegenstandes geändert, soll er wirklich einer anderen Kategorie "
    "zugeordnet werden ?"_ansi;
inline constexpr std::string_view DeleteQuestion =
    "Wollt ihr den gewählten Gegenstand wirklich löschen ?"_ansi;
inline constexpr std::string_view DeleteCategoryQuestion =
    "Soll die gewählte Kategorie wirklich gelöscht werden ?"_ansi;
inline constexpr std::string_view NamePrompt = "Bitte gebt der Kategorie einen Namen.";

} // namespace emporium::test
