// A platform whose boxes are answered by a script. The questions must come in the scripted order,
// word for word; an unexpected one fails the test, and so does one that was never asked.
#pragma once

#include "base/Platform.h"

#include <deque>
#include <string>
#include <string_view>
#include <vector>

namespace emporium::test {

class ScriptedPlatform {
public:
    ScriptedPlatform();
    ~ScriptedPlatform();
    ScriptedPlatform(const ScriptedPlatform&) = delete;
    ScriptedPlatform& operator=(const ScriptedPlatform&) = delete;

    /// What is handed to the operations.
    Platform platform;

    void ExpectYesNo(std::string_view text, bool answer);
    void ExpectText(std::string_view prompt, std::string_view answer);

    /// A message that begins so.
    void ExpectMessage(std::string_view beginning);
    void ExpectSave(const std::filesystem::path& answer);

    /// The throws to come; a throw beyond them fails the test.
    void Throw(std::initializer_list<int> throws);

    /// The sides of the dice thrown so far.
    std::vector<int> sides;

    /// The files opened in the viewer.
    std::vector<std::filesystem::path> viewed;

private:
    struct Step {
        std::string kind;
        std::string text;
        std::string answer;
    };

    void Expect(std::string_view kind, std::string_view text, std::string answer);
    std::string Answer(std::string_view kind, std::string_view text);

    std::deque<Step> script_;
    std::deque<int> throws_;
};

} // namespace emporium::test
