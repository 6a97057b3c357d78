#include "examples.h"

#include "example_host.h"
#include "word_scripts.h"

#include <algorithm>
#include <sstream>

namespace {

constexpr const char* OPENING = "opening";
constexpr const char* WITHOUT_FAMILY = "znbrowsermanager";

std::string FamilyOf(const std::string& file) {
    std::string words = file.substr(0, file.rfind('.'));
    if (words == WITHOUT_FAMILY) return "";
    std::replace(words.begin(), words.end(), '_', ' ');
    const std::optional<KnownLine> known = Recognize(WITHOUT_FAMILY + (' ' + words));
    return known ? known->words : words;
}

Example Read(const WordScript& script) {
    Example example{FamilyOf(script.file), {}};
    std::istringstream text(script.text);
    for (std::string line; std::getline(text, line);) {
        if (line.empty()) continue;
        const std::optional<KnownLine> known = Recognize(line);
        example.lines.push_back({line, known ? known->words : "", ""});
    }
    return example;
}

std::vector<Example> ReadAll() {
    std::vector<Example> examples;
    for (const WordScript& script : WordScripts()) {
        Example example = Read(script);
        if (example.words != OPENING) examples.push_back(std::move(example));
    }
    return examples;
}

} // namespace

const Example& ExampleOpening() {
    static const Example opening = [] {
        const auto isOpening = [](const WordScript& script) { return FamilyOf(script.file) == OPENING; };
        return Read(*std::find_if(WordScripts().begin(), WordScripts().end(), isOpening));
    }();
    return opening;
}

const std::vector<Example>& Examples() {
    static const std::vector<Example> examples = ReadAll();
    return examples;
}

const Example& ExampleAbout(const std::string& words) {
    const Example* closest = nullptr;
    for (const Example& example : Examples()) {
        const bool holds = example.words.empty() || (words + ' ').rfind(example.words + ' ', 0) == 0;
        if (holds && (!closest || closest->words.size() < example.words.size())) closest = &example;
    }
    return *closest;
}

std::vector<ExampleLine> Answered(const Example& example) {
    std::vector<ExampleLine> lines = example.lines;
    const ExampleHost host;
    std::string answer;
    for (const ExampleLine& line : ExampleOpening().lines) host.Run(line.command, answer);
    for (ExampleLine& line : lines) host.Run(line.command, line.answer);
    return lines;
}

std::string AsTyped(const std::vector<ExampleLine>& lines) {
    std::string text;
    for (const ExampleLine& line : lines) {
        text += (line.command.front() == '#' ? "" : "% ") + line.command + '\n';
        if (line.answer.empty()) continue;
        text += line.answer;
        if (text.back() != '\n') text += '\n';
    }
    return text;
}
