#include "itemeditor/ItemForm.h"

#include "itemeditor/AvailabilityEditor.h"
#include "regions/Availability.h"
#include "text/Ansi.h"

namespace emporium {

namespace {

// A line without its mark stays whole, and its list waits for a choice. A mark that the list does
// not know leaves the choice as it was.
void ShowMarked(TextField& text, ChoiceList& list, const RecordView& record, ItemField field) {
    const std::string_view line = record[field];
    if (!HasMark(record, field)) {
        text.text = line;
        list.Select(-1);
        return;
    }
    text.text = WithoutLast(line);
    for (std::size_t i = 0; i < list.Entries().size(); ++i)
        if (list.Entries()[i].front() == line.back())
            list.Select(static_cast<int>(i));
}

// The character that stands for the chosen entry; none without a choice.
std::string Mark(const ChoiceList& list) {
    return list.Text().substr(0, 1);
}

} // namespace

void ShowItemInForm(ItemEditor& editor, const Platform& platform, int row) {
    const RecordView& record = editor.Record(row);
    ShowMarked(editor.txtItem[NameText], editor.cmbItemWert, record, NameField);
    editor.txtItem[WeightText].text = record[WeightField];
    ShowMarked(editor.txtItem[PriceText], editor.cmbItemPreis, record, PriceField);
    editor.txtItem[DescriptionText].text = record[DescriptionField];
    ShowAvailability(editor, platform, record[AvailabilityField]);
    UpdateSaveAvailability(editor);
}

void ClearItemForm(ItemEditor& editor) {
    for (TextField& field : editor.txtItem)
        field.text.clear();
    editor.cmbItemWert.Select(-1);
    editor.cmbItemPreis.Select(-1);
    ReturnAllRegions(editor);
    UpdateSaveAvailability(editor);
}

void StartNewItem(ItemEditor& editor, const Platform& platform) {
    editor.EditingExisting = false;
    ClearItemForm(editor);
    platform.FocusItemName();
}

void EditItemText(ItemEditor& editor, ItemText field, std::string text) {
    editor.txtItem[field].text = std::move(text);
    UpdateSaveAvailability(editor);
}

void ChooseItemCategory(ItemEditor& editor, int index) {
    editor.cmbItemKategorien.Select(index);
}

void ChooseItemUnit(ItemEditor& editor, int index) {
    editor.cmbItemPreis.Select(index);
}

void ChooseItemWert(ItemEditor& editor, int index) {
    editor.cmbItemWert.Select(index);
    UpdateSaveAvailability(editor);
}

void UpdateSaveAvailability(ItemEditor& editor) {
    editor.cmdItemSave.enabled = !editor.txtItem[NameText].text.empty() &&
                                 !editor.txtItem[PriceText].text.empty() &&
                                 editor.cmbItemWert.Selection() >= 0;
}

bool FilterItemKey(ItemText field, char character, std::string_view text, std::size_t caret) {
    constexpr std::string_view signs = "+-";
    constexpr std::string_view separators = ",.";
    constexpr char backspace = 8;
    if (field != WeightText && field != PriceText)
        return true;
    if (character == backspace || (character >= '0' && character <= '9'))
        return true;
    if (signs.find(character) != signs.npos)
        return caret == 0 && text.find_first_of(signs) == text.npos;
    if (separators.find(character) != separators.npos)
        return caret != 0 && text.find_first_of(separators) == text.npos;
    return false;
}

std::string FilterItemPaste(ItemText field, std::string_view pasted, std::string text,
                            std::size_t caret, std::size_t replaced) {
    const std::string_view entered =
        field == WeightText || field == PriceText ? Trim(pasted) : pasted;
    for (const char character : entered) {
        if (!FilterItemKey(field, character, text, caret))
            return {};
        text.replace(caret++, replaced, 1, character);
        replaced = 0;
    }
    return std::string(entered);
}

ItemRecord RecordOfForm(const ItemEditor& editor) {
    ItemRecord record;
    record[NameField] = editor.txtItem[NameText].text;
    record[NameField] += Mark(editor.cmbItemWert);
    record[WeightField] = editor.txtItem[WeightText].text;
    record[PriceField] = editor.txtItem[PriceText].text;
    record[PriceField] += Mark(editor.cmbItemPreis);
    record[DescriptionField] = editor.txtItem[DescriptionText].text;
    record[AvailabilityField] = BuildAvailability(editor.lstVerfügbar.Entries());
    return record;
}

} // namespace emporium
