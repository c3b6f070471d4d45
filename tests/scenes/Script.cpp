// SPDX-License-Identifier: MIT
#include "tests/scenes/Script.h"
#include "tests/SourceFolder.h"
#include "tests/golden/Golden.h"

#include <fstream>
#include <map>
#include <stdexcept>

namespace korvel::testing
{
namespace
{

/// How often a word stands there: "x"*3 is three words.
std::size_t repetitions(const std::string& line, std::size_t& pos)
{
    if (pos >= line.size() || line[pos] != '*') return 1;
    std::size_t digits = 0;
    const std::size_t times = std::stoul(line.substr(pos + 1), &digits);
    pos += 1 + digits;
    return times;
}

std::vector<Word> wordsOf(const std::string& line)
{
    std::vector<Word> words;
    for (std::size_t pos = 0; (pos = line.find_first_not_of(" \t", pos)) != std::string::npos;) {
        if (line[pos] == '#' && line.substr(pos, 2) != "#T" && line.substr(pos, 2) != "#F")
            break; // a tick
        if (line[pos] == '"') {
            const std::string text = quotedText(line, ++pos);
            words.insert(words.end(), repetitions(line, pos), Word{text, true});
            continue;
        }
        const std::size_t end = std::min(line.find_first_of(" \t", pos), line.size());
        words.push_back({line.substr(pos, end - pos), false});
        pos = end;
    }
    return words;
}

/// Puts the arguments of a routine's call for $1, $2 ..
std::string withArguments(std::string text, const std::vector<Word>& arguments)
{
    for (std::size_t i = arguments.size(); i > 0; --i) {
        const std::string name = "$" + std::to_string(i);
        for (std::size_t at = 0; (at = text.find(name, at)) != std::string::npos;
             at += arguments[i - 1].text.size())
            text.replace(at, name.size(), arguments[i - 1].text);
    }
    return text;
}

/// What a line does to the scene that is being read.
class Reader
{
public:
    explicit Reader(std::string file) : m_file(std::move(file)) {}

    void read(const std::string& line, int number)
    {
        std::vector<Word> words = wordsOf(line);
        if (words.empty()) return;
        const std::string verb = words.front().text;
        words.erase(words.begin());
        if (verb == "define")
            m_steps = &m_routines[words.at(0).text];
        else if (verb == "begin")
            m_steps = &m_begin;
        else if (verb == "scene")
            begin(words, number);
        else
            add({number, line.substr(line.find_first_not_of(" \t")), verb, std::move(words)});
    }

    std::vector<Scene> scenes;

private:
    void begin(const std::vector<Word>& words, int number)
    {
        // Whoever writes a scene knows what it is for.
        if (words.size() < 3 || words[1].text != "catches")
            throw std::runtime_error("a scene is named, and says what it catches");
        scenes.push_back({m_file, words[0].text, number, m_begin});
        m_steps = &scenes.back().steps;
    }

    void add(Step step)
    {
        const auto routine = m_routines.find(step.verb);
        if (routine == m_routines.end() || &routine->second == m_steps) {
            m_steps->push_back(std::move(step));
            return;
        }
        for (Step each : routine->second) {
            for (Word& word : each.words)
                word.text = withArguments(word.text, step.words);
            each.line = step.line;
            each.source = step.source + ": " + withArguments(each.source, step.words);
            m_steps->push_back(std::move(each));
        }
    }

    std::string m_file;
    std::map<std::string, std::vector<Step>> m_routines;
    std::vector<Step> m_begin;
    std::vector<Step>* m_steps = &m_begin;
};

} // namespace

std::vector<Scene> readScenes(const std::string& file)
{
    std::ifstream stream(sourceFile(file));
    Reader reader(file);
    int number = 0;
    for (std::string line; std::getline(stream, line);) {
        ++number;
        try {
            reader.read(line, number);
        } catch (const std::exception& fault) {
            throw std::runtime_error(file + ":" + std::to_string(number) + ": " + fault.what());
        }
    }
    if (reader.scenes.empty()) throw std::runtime_error(file + ": there is no scene");
    return std::move(reader.scenes);
}

} // namespace korvel::testing
