// An item editor over a small world of categories, driven through its controls as a user does.
#pragma once

#include "itemeditor/AvailabilityEditor.h"
#include "itemeditor/CategoryCare.h"
#include "itemeditor/CategoryChoice.h"
#include "itemeditor/CategoryDropDowns.h"
#include "itemeditor/ItemForm.h"
#include "itemeditor/ItemList.h"
#include "itemeditor/ItemSaving.h"
#include "regions/Availability.h"
#include "support/MemoryDisk.h"
#include "support/ScriptedPlatform.h"
#include "text/Ansi.h"

#include <algorithm>
#include <map>
#include <sstream>

namespace emporium::test {

inline constexpr std::string_view MoveQuestion =
    "Ihr habt die Kategorie des Gegenstandes geändert, soll er wirklich einer anderen Kategorie "
    "zugeordnet werden ?"_ansi;
inline constexpr std::string_view DeleteQuestion =
    "Wollt ihr den gewählten Gegenstand wirklich löschen ?"_ansi;
inline constexpr std::string_view DeleteCategoryQuestion =
    "Soll die gewählte Kategorie wirklich gelöscht werden ?"_ansi;
inline constexpr std::string_view NamePrompt = "Bitte gebt der Kategorie einen Namen.";

inline int PlaceOf(const ChoiceList& list, std::string_view entry) {
    const auto found = std::find(list.Entries().begin(), list.Entries().end(), entry);
    EXPECT_NE(found, list.Entries().end()) << entry;
    return static_cast<int>(found - list.Entries().begin());
}

inline int PlaceOfMark(std::string_view marks, const std::string& line) {
    const auto place = line.empty() ? marks.npos : marks.find(line.back());
    return place == marks.npos ? -1 : static_cast<int>(place);
}

class EditorAtWork {
public:
    /// Nahkampfwaffen with one item, Fernwaffen and Abakus without any, Rüstungen with one,
    /// Kleidung with four, Öllampen with two; listed in this order, Abakus last.
    EditorAtWork() {
        const std::pair<std::string_view, std::string_view> files[] = {
            {"ItemKategorien"_ansi,
             " 6 ;Nahkampfwaffen;Fernwaffen;Rüstungen;Kleidung;Öllampen;Abakus;"_ansi},
            {"Nahkampfwaffen"_ansi, "Dolch2;20;12S;Ein einfacher Dolch;BO|GA|TH|;"_ansi},
            {"Fernwaffen"_ansi, ""_ansi},
            {"Rüstungen"_ansi, "Helm4;60;+3D;;;"_ansi},
            {"Kleidung"_ansi, "Mantel3;0,5;20D; Blau, mit | bestickt ;"
                              "BO|EL|FI|GA|HA|KH|LF|MA|MH|MO|NO|OR|PU|SÜ|TH|TO|WA|WE|ZW|ZY|;"
                              "Ärmel1;;5S;;;"
                              "mantel2;-1.;100D;Für \u0081 den Regen;SÜ|;"
                              "Zopf5;2;5S;;BO|;"_ansi},
            {"Öllampen"_ansi, "Laterne 23;7;8H;;;X1;;-P;Nur ein Zeichen;;"_ansi},
            {"Abakus"_ansi, ""_ansi}};
        for (const auto& [name, lines] : files) {
            std::string bytes;
            for (const char c : lines)
                bytes += c == ';' ? "\r\n" : std::string(1, c);
            program.Write(std::string("Emporium/").append(name).append(".dat"), bytes);
        }
        script.platform.disk.files = program.Files();
        std::vector<std::string> faults;
        ReadCategoryList(editor, script.platform.disk, faults);
    }

    MemoryDisk program;
    ScriptedPlatform script{program.folders};
    ItemEditor editor;

    /// Picks a view, or the category in the form.
    void View(std::string_view entry) {
        ChooseCategory(editor, script.platform, PlaceOf(editor.cmbKategorien, entry));
    }

    void FormCategory(std::string_view entry) {
        ChooseItemCategory(editor, PlaceOf(editor.cmbItemKategorien, entry));
    }

    /// Picks the row of a record, or of the first of that name.
    void Open(int record) {
        ASSERT_GE(record, 0);
        ChooseItemRow(editor, script.platform, record);
    }

    void Open(std::string_view name) {
        int record = editor.ItemCount() - 1;
        for (int row = record; row >= 0; --row)
            record = ItemName(editor.Record(row)) == name ? row : record;
        Open(record);
    }

    /// Types and picks all of a record; a mark that is none leaves its list without a choice.
    void Fill(const ItemRecord& record) {
        ChooseItemWert(editor, PlaceOfMark("12345", record[NameField]));
        EditItemText(editor, NameText, std::string(WithoutLast(record[NameField])));
        EditItemText(editor, WeightText, record[WeightField]);
        EditItemText(editor, PriceText, std::string(WithoutLast(record[PriceField])));
        EditItemText(editor, DescriptionText, record[DescriptionField]);
        ChooseItemUnit(editor, PlaceOfMark("DSHP", record[PriceField]));
        ReturnAllRegions(editor);
        for (const std::string_view code : AvailabilityCodes(record[AvailabilityField])) {
            SelectRegion(editor, script.platform, PlaceOf(editor.lstRegionen, code));
            MoveRegionIn(editor);
        }
    }

    void Save() { SaveItem(editor, script.platform); }

    void Delete() { ConfirmDeleteItem(editor, script.platform); }

    void Delete(bool answer) {
        script.ExpectYesNo(DeleteQuestion, answer);
        Delete();
    }

    /// The names and prices in the list as they stand in it.
    std::string Shown() const {
        std::string shown;
        for (const int row : editor.lvGegenstände.rows)
            for (const int column : {ItemNameColumn, ItemPriceColumn})
                shown.append(ItemCell(editor.Record(row), column)).append(" ");
        return shown;
    }

    /// The records of the view.
    std::vector<ItemRecord> Records() const {
        std::vector<ItemRecord> records;
        for (const ItemRow& row : editor.Items)
            records.push_back(CopyOf(row.record));
        return records;
    }

    /// The bytes of a category's file.
    std::string File(std::string_view category) const {
        return program.Read(std::string("Emporium/").append(category).append(".dat"));
    }

    /// All data files by name.
    std::map<std::string, std::string> Files() const {
        auto files = program.Contents(program.folders.EmporiumFolder());
        std::erase_if(files, [](const auto& file) { return !file.first.ends_with(".dat"); });
        return files;
    }

    /// All that the controls and records hold.
    std::string State() const {
        std::ostringstream out;
        const auto put = [&out](const auto& entries) {
            for (const auto& entry : entries)
                out << entry << ';';
            out << '\n';
        };
        for (const ItemRow& row : editor.Items) {
            put(row.record);
            out << row.home;
        }
        for (const ViewFile& file : editor.viewFiles)
            out << file.name << file.canBeWritten;
        put(editor.lvGegenstände.rows);
        for (const TextField& field : editor.txtItem)
            out << field.text << '\n';
        for (const ChoiceList* list :
             {&editor.cmbKategorien, &editor.cmbItemKategorien, &editor.cmbItemPreis,
              &editor.cmbItemWert, &editor.lstRegionen, &editor.lstVerfügbar}) {
            put(list->Entries());
            out << list->Selection() << '\n';
        }
        for (const Button* button : {&editor.cmdItemSave, &editor.cmdItemDelete, &editor.cmdItemHin,
                                     &editor.cmdListeDrucken, &editor.cmdKategorieDelete})
            out << button->enabled;
        out << editor.CurrentItemRow << editor.EditingExisting << editor.lvGegenstände.toolTip;
        return out.str();
    }
};

/// The records as a file holds them.
inline std::string RecordLines(const std::vector<ItemRecord>& records) {
    std::string text;
    for (const ItemRecord& record : records)
        text += Lines({record[0], record[1], record[2], record[3], record[4]});
    return text;
}

inline const ItemRecord Hat = {"Hut2", "1,5", "12S", "Spitz", "BO|TH|"};

/// Saves, and expects a box and that all stays as it was.
inline void ExpectRefusal(EditorAtWork& world, std::string_view message) {
    const auto files = world.Files();
    const auto state = world.State();
    world.script.ExpectMessage(message);
    world.Save();
    EXPECT_EQ(world.Files(), files) << message;
    EXPECT_EQ(world.State(), state) << message;
}

} // namespace emporium::test
