// A platform whose boxes are answered by a script. The questions must come in the scripted order,
// word for word; an unexpected one fails the test, and so does one that was never asked.
#pragma once

#include "base/Platform.h"

#include <gtest/gtest.h>

#include <deque>
#include <string>
#include <string_view>
#include <vector>

namespace emporium::test {

class ScriptedPlatform {
public:
    explicit ScriptedPlatform(const Folders& folders = {}) {
        platform.disk = {SystemFiles(), folders};
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
        platform.AskYesNo = [this](const YesNoBox& box) {
            return Answer("yes/no", box.text) == "yes";
        };
        platform.ShowMessage = [this](std::string_view text) { Answer("message", text); };
        platform.AskText = [this](std::string_view prompt, std::string_view) {
            return Answer("text", prompt);
        };
        platform.ShowGeneratorDialog = [] {};
        platform.SetWaitPointer = [this](bool on) { EXPECT_NE(std::exchange(waiting_, on), on); };
        platform.FocusItemName = [this] { focus = "name"; };
        platform.FocusItemUnit = [this] { focus = "unit"; };
    }
    ~ScriptedPlatform() {
        EXPECT_FALSE(waiting_);
        for (const Step& step : script_)
            ADD_FAILURE() << "never asked: " << step.kind << " " << step.text;
    }
    ScriptedPlatform(const ScriptedPlatform&) = delete;
    ScriptedPlatform& operator=(const ScriptedPlatform&) = delete;

    /// What is handed to the operations.
    Platform platform;

    void ExpectYesNo(std::string_view text, bool answer) {
        script_.push_back({"yes/no", std::string(text), answer ? "yes" : "no"});
    }
    void ExpectText(std::string_view prompt, std::string_view answer) {
        script_.push_back({"text", std::string(prompt), std::string(answer)});
    }

    /// A message that begins so.
    void ExpectMessage(std::string_view beginning) {
        script_.push_back({"message", std::string(beginning), {}});
    }

    /// What was expected need not come any more.
    void Forget() { script_.clear(); }

    /// The throws to come; a throw beyond them fails the test.
    void Throw(const std::vector<int>& throws) {
        throws_.insert(throws_.end(), throws.begin(), throws.end());
    }

    /// The field that got the keyboard focus last.
    std::string focus;

    /// The sides of the dice thrown so far.
    std::vector<int> sides;

private:
    struct Step {
        std::string kind, text, answer;
    };

    std::string Answer(std::string_view kind, std::string_view text) {
        EXPECT_FALSE(waiting_) << "a box under the wait pointer: " << text;
        if (script_.empty()) {
            ADD_FAILURE() << "unexpected: " << kind << " " << text;
            return {};
        }
        const Step step = script_.front();
        script_.pop_front();
        EXPECT_EQ(step.kind, kind);
        EXPECT_EQ(step.text, kind == "message" ? text.substr(0, step.text.size()) : text);
        return step.answer;
    }

    std::deque<Step> script_;
    std::deque<int> throws_;
    bool waiting_ = false;
};

} // namespace emporium::test
