#include "itemeditor/EditorModel.h"
#include "store/CategoryList.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <random>

namespace emporium::test {
namespace {

class RandomOperations : public testing::Test {
protected:
    RandomOperations() {
        const char* wanted = std::getenv("EMPORIUM_TEST_SEED");
        seed = wanted ? static_cast<unsigned>(std::stoul(wanted)) : std::random_device()();
        chance.seed(seed);
        model.list = ReadCategoryNames(world.script.platform.disk).names;
        for (const std::string& name : model.list) {
            world.View(name);
            model.files[name] = world.Records();
        }
        model.Load(model.list.back());
    }

    std::size_t Throw(std::size_t n) { return chance() % n; }

    std::string OneOf(const std::vector<std::string>& texts) { return texts[Throw(texts.size())]; }

    void OpenAny() {
        if (model.rows.empty())
            return;
        model.chosen = static_cast<int>(Throw(model.rows.size()));
        model.form = model.Chosen().record;
        model.editing = model.unit = true;
        model.toolTip = ItemName(ViewOf(model.form));
        world.Open(model.chosen);
    }

    void TypeAny() {
        const std::vector<std::string> names = {"Aal",    std::string("Äbte"_ansi), "aal",
                                                "Zopf 2", std::string("ß"_ansi),    ""};
        model.form = {OneOf(names) + OneOf({"1", "3", "5"}), OneOf({"", "7"}),
                      OneOf({"1D", "1D", "20S", "3H", "-0,5P", "D", "7?"}), OneOf(names),
                      OneOf({"", "BO|", "FI|WA|"})};
        world.Fill(model.form);
        model.unit = model.form[PriceField] != "7?";
        if (!model.unit)
            model.form[PriceField] = "7";
    }

    void Save() {
        const std::string view = model.view;
        const std::string wanted = model.formCategory;
        if (!model.CanSave())
            return;
        if (!model.unit) {
            world.script.ExpectMessage("Bitte wählt zum Preis"_ansi);
        } else if (!model.editing) {
            AddToModel(model.IsCategory(view) ? view : wanted);
        } else if (view != wanted && model.IsCategory(view) && model.IsCategory(wanted)) {
            const bool yes = Throw(3) > 0;
            world.script.ExpectYesNo(MoveQuestion, yes);
            if (yes) {
                model.files[wanted].push_back(model.Chosen().record);
                model.TakeOutChosen();
            }
            model.EndEditing();
        } else {
            const bool changes = model.Chosen().record != model.form;
            *model.Stored() = model.Chosen().record = model.form;
            model.shown = changes ? model.PlaceOf(model.chosen) : model.shown;
            model.toolTip = ItemName(ViewOf(model.form));
            model.EndEditing();
        }
        world.Save();
    }

    void AddToModel(const std::string& home) {
        if (!model.IsCategory(home)) {
            world.script.ExpectMessage("Bitte wählt im Feld Kategorie"_ansi);
            return;
        }
        model.files[home].push_back(model.form);
        if (model.view.empty())
            return model.Load(home);
        model.rows.push_back({home, model.form});
        model.shown = model.PlaceOf(static_cast<int>(model.rows.size()) - 1);
        model.EndEditing();
    }

    void Delete() {
        if (model.rows.empty())
            return world.Delete();
        if (model.chosen < 0) {
            world.script.ExpectMessage("Bitte wählt zuerst"_ansi);
            return world.Delete();
        }
        const bool yes = Throw(4) > 0;
        if (yes)
            model.TakeOutChosen();
        world.Delete(yes);
    }

    void Sort() {
        model.column = Throw(2) > 0 ? ItemNameColumn : ItemPriceColumn;
        model.descending = !model.descending;
        SortItemList(world.editor, model.column);
    }

    void SwitchView() {
        model.Load(OneOf(world.editor.cmbKategorien.Entries()));
        world.View(model.view);
    }

    void PickFormCategory() {
        model.formCategory = OneOf(world.editor.cmbItemKategorien.Entries());
        world.FormCategory(model.formCategory);
    }

    void Begin() {
        model.EndEditing();
        StartNewItem(world.editor, world.script.platform);
        ASSERT_EQ(std::exchange(world.script.focus, ""), "name");
    }

    void New() {
        const std::string name = "Neu" + OneOf({"a", "b", "c", "d", "e"});
        world.script.ExpectText(NamePrompt, name);
        if (model.IsCategory(name)) {
            world.script.ExpectMessage("Diese Kategorie existiert");
            world.script.ExpectText(NamePrompt, "");
        } else {
            model.list.push_back(name);
            model.files[name];
        }
        NewCategory(world.editor, world.script.platform);
    }

    void DropCategory() {
        if (!model.CanDrop())
            return;
        const bool yes = Throw(4) > 0;
        world.script.ExpectYesNo(DeleteCategoryQuestion, yes);
        if (yes) {
            std::erase(model.list, model.view);
            model.files.erase(model.view);
            if (model.formCategory == model.view)
                model.formCategory = "";
            model.view = "";
        }
        DeleteCategory(world.editor, world.script.platform);
    }

    void Operate() {
        using Self = RandomOperations;
        static constexpr std::array operations = {
            &Self::OpenAny, &Self::OpenAny,      &Self::TypeAny,    &Self::TypeAny,
            &Self::Save,    &Self::Save,         &Self::Save,       &Self::Delete,
            &Self::Delete,  &Self::Sort,         &Self::SwitchView, &Self::PickFormCategory,
            &Self::New,     &Self::DropCategory, &Self::Begin};
        const auto before = world.Shown();
        const unsigned revision = world.editor.lvGegenstände.revision;
        (this->*operations[Throw(operations.size())])();
        ASSERT_TRUE(world.Shown() == before || world.editor.lvGegenstände.revision > revision);
    }

    void ExpectAgreement() {
        std::map<std::string, std::string> files;
        for (const auto& [name, records] : model.files)
            files[name + ".dat"] = RecordLines(records);
        files["ItemKategorien.dat"] = " " + std::to_string(model.list.size()) + " \r\n";
        for (const std::string& name : model.list)
            files["ItemKategorien.dat"] += name + "\r\n";
        ASSERT_EQ(world.Files(), files);

        const ItemEditor& editor = world.editor;
        std::vector<ItemRecord> records;
        for (const Row& row : model.rows)
            records.push_back(row.record);
        ASSERT_EQ(world.Records(), records);
        ASSERT_EQ(editor.lvGegenstände.rows, model.Order());
        ASSERT_EQ(editor.CurrentItemRow, model.chosen);
        ASSERT_EQ(ChosenPlace(editor), model.PlaceOf(model.chosen));
        ASSERT_EQ(editor.lvGegenstände.reveal.row, model.shown);
        ASSERT_EQ(editor.lvGegenstände.toolTip, model.toolTip);
        ASSERT_EQ(editor.EditingExisting, model.editing);
        ASSERT_EQ(RecordOfForm(editor), model.form);
        ASSERT_EQ(editor.cmbKategorien.Text(), model.view);
        ASSERT_EQ(editor.cmbItemKategorien.Text(), model.formCategory);
        ASSERT_EQ(editor.cmbKategorien.Entries(), editor.cmbItemKategorien.Entries());
        ASSERT_EQ(editor.cmbKategorien.Entries().size(), model.list.size() + 1);
        for (const Button* button :
             {&editor.cmdItemDelete, &editor.cmdItemHin, &editor.cmdListeDrucken})
            ASSERT_EQ(button->enabled, !model.rows.empty());
        ASSERT_EQ(editor.cmdKategorieDelete.enabled, model.CanDrop());
        ASSERT_EQ(editor.cmdItemSave.enabled, model.CanSave());
    }

    EditorAtWork world;
    Model model;
    unsigned seed = 0;
    std::mt19937 chance;
};

TEST_F(RandomOperations, AgreeWithTheModelAfterEveryStep) {
    SCOPED_TRACE("EMPORIUM_TEST_SEED=" + std::to_string(seed));
    for (int step = 0; step < 1000 && !HasFailure(); ++step) {
        SCOPED_TRACE("step " + std::to_string(step));
        Operate();
        ExpectAgreement();
    }
}

} // namespace
} // namespace emporium::test
