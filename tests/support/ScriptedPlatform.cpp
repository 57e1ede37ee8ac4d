#include "support/ScriptedPlatform.h"

#include <gtest/gtest.h>

namespace emporium::test {

ScriptedPlatform::ScriptedPlatform() {
    platform.files = SystemFiles();
    platform.RollDice = [this](std::int32_t n) {
        sides.push_back(n);
        if (throws_.empty()) {
            ADD_FAILURE() << "an unexpected throw of a die with " << n << " sides";
            return 1;
        }
        const int result = throws_.front();
        throws_.pop_front();
        EXPECT_LE(result, n) << "the scripted throw does not fit the die";
        return result;
    };
    platform.AskYesNo = [this](const YesNoBox& box) { return Answer("yes/no", box.text) == "yes"; };
    platform.ShowMessage = [this](std::string_view text) { Answer("message", text); };
    platform.AskText = [this](std::string_view prompt) { return Answer("text", prompt); };
    platform.ShowSave = [this](const std::filesystem::path&, std::string_view) {
        return std::filesystem::path(Answer("save", ""));
    };
    platform.OpenInViewer = [this](const std::filesystem::path& file) { viewed.push_back(file); };
    platform.Browser.SetVisible = [](bool) {};
    platform.Browser.Navigate = [](const std::filesystem::path&) {};
    platform.Browser.Print = [] { return true; };
    platform.ProcessEvents = [] { return true; };
    platform.ShowGeneratorDialog = [] {};
    platform.SetWaitPointer = [](bool) {};
    platform.FocusItemName = [] {};
}

ScriptedPlatform::~ScriptedPlatform() {
    for (const Step& step : script_)
        ADD_FAILURE() << "never asked: " << step.kind << " " << step.text;
}

void ScriptedPlatform::ExpectYesNo(std::string_view text, bool answer) {
    Expect("yes/no", text, answer ? "yes" : "no");
}

void ScriptedPlatform::ExpectText(std::string_view prompt, std::string_view answer) {
    Expect("text", prompt, std::string(answer));
}

void ScriptedPlatform::ExpectMessage(std::string_view beginning) {
    Expect("message", beginning, {});
}

void ScriptedPlatform::ExpectSave(const std::filesystem::path& answer) {
    Expect("save", "", answer.string());
}

void ScriptedPlatform::Throw(std::initializer_list<int> throws) {
    throws_.insert(throws_.end(), throws);
}

void ScriptedPlatform::Expect(std::string_view kind, std::string_view text, std::string answer) {
    script_.push_back({std::string(kind), std::string(text), std::move(answer)});
}

std::string ScriptedPlatform::Answer(std::string_view kind, std::string_view text) {
    if (script_.empty()) {
        ADD_FAILURE() << "unexpected: " << kind << " " << text;
        return {};
    }
    const Step step = script_.front();
    script_.pop_front();
    EXPECT_EQ(step.kind, kind);
    if (kind == "message")
        EXPECT_TRUE(text.starts_with(step.text)) << text << "\nshould begin: " << step.text;
    else
        EXPECT_EQ(step.text, text);
    return step.answer;
}

} // namespace emporium::test
