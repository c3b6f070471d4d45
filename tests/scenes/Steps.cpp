// SPDX-License-Identifier: MIT
#include "tests/scenes/Steps.h"

#include <charconv>
#include <cmath>
#include <iterator>
#include <set>
#include <stdexcept>

namespace korvel::testing
{

const std::string& wordAt(const Words& words, std::size_t place)
{
    if (place >= words.size()) throw std::runtime_error("a word is missing");
    return words[place].text;
}

double numberAt(const Words& words, std::size_t place)
{
    const std::string& text = wordAt(words, place);
    double value = 0;
    const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (fault != std::errc() || end != text.data() + text.size())
        throw std::runtime_error("no number: " + text);
    return value;
}

void expectText(const std::string& seen, const Words& words, std::size_t place)
{
    const auto expect = [&](bool good, const std::string& how) {
        if (!good) throw std::runtime_error("expected " + how + "\n     seen \"" + seen + "\"");
    };
    const std::string& first = wordAt(words, place);
    if (words[place].quoted) {
        expect(seen == first, "\"" + first + "\"");
        return;
    }
    if (first == "near") {
        double value = 0;
        std::from_chars(seen.data(), seen.data() + seen.size(), value);
        expect(std::fabs(value - numberAt(words, place + 1)) <= numberAt(words, place + 2),
               "about " + words[place + 1].text);
        return;
    }
    for (std::size_t i = place + 1; i <= place + 1 || i < words.size(); ++i) {
        const std::string& part = wordAt(words, i);
        const bool found = seen.find(part) != std::string::npos;
        if (first == "has")
            expect(found, "with \"" + part + "\"");
        else if (first == "lacks")
            expect(!found, "without \"" + part + "\"");
        else if (first == "starts")
            expect(seen.starts_with(part), "beginning with \"" + part + "\"");
        else if (first == "not")
            expect(seen != part, "anything but \"" + part + "\"");
        else
            throw std::runtime_error("no way to compare: " + first);
    }
}

std::string bytesAt(const Words& words, std::size_t place)
{
    std::string bytes;
    const bool isRecord =
        place < words.size() && !words[place].quoted && words[place].text == "record";
    for (std::size_t i = place + (isRecord ? 1 : 0); i < words.size(); ++i) {
        const auto& [text, quoted] = words[i];
        bytes += isRecord ? (quoted ? '"' + text + '"' : text) + "\r\n" : text;
    }
    return bytes;
}

std::vector<std::string> membersOf(const std::string& name)
{
    const auto dots = name.find("..");
    const auto open = name.find('(');
    if (dots == std::string::npos || open == std::string::npos) return {name};
    std::vector<std::string> members;
    const int last = std::stoi(name.substr(dots + 2));
    for (int i = std::stoi(name.substr(open + 1)); i <= last; ++i)
        members.push_back(name.substr(0, open + 1) + std::to_string(i) + ")");
    return members;
}

void play(Stage& stage, const std::string& verb, const Words& words)
{
    for (const auto* verbs : {&handVerbs(), &machineVerbs(), &eyeVerbs()}) {
        const auto found = verbs->find(verb);
        if (found == verbs->end()) continue;
        // Of some steps a line holds several: a name behind a text begins the next.
        static const std::set<std::string> lists = {"accessible", "caption", "described", "heard",
                                                    "memory",     "tooltip", "value"};
        auto begin = words.begin();
        for (auto at = begin; at != words.end(); ++at)
            if (lists.contains(verb) && at != begin && !at->quoted && std::prev(at)->quoted) {
                found->second(stage, {begin, at});
                begin = at;
            }
        found->second(stage, {begin, words.end()});
        return;
    }
    throw std::runtime_error("no such step: " + verb);
}

} // namespace korvel::testing
