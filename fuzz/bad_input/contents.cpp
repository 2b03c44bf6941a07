// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "contents.h"

#include "pictures.h"

#include <algorithm>
#include <functional>
#include <random>
#include <utility>

namespace kitwright::badinput {

namespace {

using Content = std::optional<std::string>;

constexpr std::size_t million = 1'000'000;

/// Makes one content; sizes are the full ones until `scaled`.
class Maker {
public:
    Maker(const Flavour& flavour, SizeFactor factor) : m_flavour(flavour), m_factor(factor) {}

    std::size_t scaled(std::size_t size) const
    {
        constexpr std::size_t smallest = 1'000;
        return std::max(smallest, static_cast<std::size_t>(static_cast<double>(size) * m_factor));
    }

    std::string randomBytes(std::size_t size) const
    {
        std::mt19937 random(1);
        std::string bytes(scaled(size), '\0');
        std::generate(bytes.begin(), bytes.end(), [&] { return static_cast<char>(random() & 0xFF); });
        return bytes;
    }

    static std::string repeated(std::string_view piece, std::size_t count)
    {
        std::string text;
        text.reserve(piece.size() * count);
        for (; count > 0; --count)
            text += piece;
        return text;
    }

    std::string filled(std::string_view piece, std::size_t size) const
    {
        return repeated(piece, scaled(size) / piece.size() + 1);
    }

    std::string line(std::string_view name) const
    {
        return m_flavour.lineStart + std::string(name) + m_flavour.lineRest;
    }

    std::string numberedLines(std::size_t count) const
    {
        std::string text = m_flavour.head;
        for (std::size_t number = 0; number < scaled(count); ++number)
            text += line("Name" + std::to_string(number)) + "\r\n";
        return text;
    }

    std::string withLineEnds(std::string_view end) const
    {
        std::string text;
        for (const char character : m_flavour.sound) {
            if (character == '\n')
                text += end;
            else if (character != '\r')
                text += character;
        }
        return text;
    }

    /// One 16-bit unit a byte, high byte first where told.
    std::string wide(bool highFirst) const
    {
        std::string text = highFirst ? "\xFE\xFF" : "\xFF\xFE";
        for (const char character : m_flavour.sound) {
            const char unit[] = {highFirst ? '\0' : character, highFirst ? character : '\0'};
            text.append(unit, 2);
        }
        return text;
    }

    std::string cut(double share) const
    {
        return m_flavour.sound.substr(
            0, static_cast<std::size_t>(static_cast<double>(m_flavour.sound.size()) * share));
    }

    std::string nested() const
    {
        // Fewer would not be deep at all.
        const std::size_t levels = std::max<std::size_t>(scaled(million / 10), 20'000);
        switch (m_flavour.nesting) {
        case Flavour::Nesting::Tree: {
            // A line goes below the last one whose key holds the marker and the level above: with these texts, below
            // the line before it, however deep that is.
            std::string text = "Root\r\n";
            for (std::size_t level = 0; level < levels; ++level)
                text += (level % 2 == 0 ? "   " : "      ") + std::string("aVNORENI0VNORENI1\r\n");
            return text;
        }
        case Flavour::Nesting::Quotes:
            return m_flavour.lineStart + "Deep," + repeated("\",", levels) + repeated("\"\"", levels) + "\r\n"
                 + m_flavour.lineStart + "After,\"" + repeated("\"\",\"", levels) + "\r\n";
        case Flavour::Nesting::Braces:
            break;
        }
        return repeated("class a {\r\n", levels) + repeated("};\r\n", levels);
    }

    /// Each line one level deeper than the one before it.
    Content indented() const
    {
        if (m_flavour.nesting != Flavour::Nesting::Tree)
            return std::nullopt;
        std::string text;
        std::string indentation;
        const std::size_t size = scaled(50 * million);
        while (text.size() < size) {
            text += indentation + "a\r\n";
            indentation += "   ";
        }
        return text;
    }

    /// A field, not a name, that is as long as a book.
    Content longField() const
    {
        if (m_flavour.separators != ",")
            return std::nullopt;
        return m_flavour.head + m_flavour.lineStart + "Long," + filled("W", 10 * million) + "\r\n"
             + m_flavour.sound;
    }

    std::string nulInside() const
    {
        std::string text = m_flavour.sound;
        for (std::size_t i = 3; i < text.size(); i += 40)
            text[i] = '\0';
        return text;
    }

    std::string hostile() const
    {
        std::string text = m_flavour.head;
        for (const char* words :
             {"%s%s%n%n", "%1 %2 %99", "$(reboot)", "`reboot`", "; rm -rf ~ #", "../../etc/passwd", "/dev/zero",
              "|cat", "C:\\CON", "<b>bold</b><img src=\"/dev/zero\">", "&amp;&Alt", "{0}{1}", "'; DROP TABLE --",
              "\x1B[2J\x1B]0;title\x07", "\\x00\\u0000", "-1e308", "99999999999999999999"})
            text += line(words) + "\r\n" + words + "\r\n" + line("a") + "," + words + "\r\n";
        return text;
    }

    std::string executable() const
    {
        return "MZ\x90" + std::string(1, '\0') + m_flavour.sound + randomBytes(million / 2)
             + "This program cannot be run in DOS mode.\r\r\n$" + std::string(4'096, '\0')
             + randomBytes(million / 2);
    }

    std::string allBytes() const
    {
        std::string bytes;
        for (int byte = 0; byte < 256; ++byte)
            bytes += static_cast<char>(byte);
        return bytes;
    }

    std::string controls() const
    {
        std::string bytes;
        for (char byte = 1; byte < ' '; ++byte)
            bytes += byte;
        return repeated(bytes + "\x7F", scaled(million / 10) / bytes.size());
    }

    const Flavour& flavour() const { return m_flavour; }

private:
    const Flavour& m_flavour;
    SizeFactor m_factor;
};

using Make = std::function<Content(const Maker&)>;

const std::vector<std::pair<std::string, Make>>& textKinds()
{
    static const std::vector<std::pair<std::string, Make>> kinds = {
        {"empty", [](const Maker&) { return ""; }},
        {"one-nul", [](const Maker&) { return std::string(1, '\0'); }},
        {"random-bytes", [](const Maker& m) { return m.randomBytes(million); }},
        {"all-byte-values", [](const Maker& m) { return m.allBytes(); }},
        {"utf-16-le", [](const Maker& m) { return m.wide(false); }},
        {"utf-16-be", [](const Maker& m) { return m.wide(true); }},
        {"utf-8-mark",
         [](const Maker& m) {
             return "\xEF\xBB\xBF" + m.line("Vojáček \u4E2D\u6587") + "\r\n" + m.flavour().sound;
         }},
        {"executable", [](const Maker& m) { return m.executable(); }},
        {"50-MB-of-text", [](const Maker& m) { return m.filled(m.flavour().sound, 50 * million); }},
        {"endless-line",
         [](const Maker& m) { return m.flavour().head + m.filled(m.line("endless") + " ", 50 * million); }},
        {"million-lines", [](const Maker& m) { return m.numberedLines(million); }},
        {"million-empty-lines", [](const Maker& m) { return Maker::repeated("\r\n", m.scaled(million)); }},
        {"deep-nesting", [](const Maker& m) { return m.nested(); }},
        {"deep-indentation", [](const Maker& m) { return m.indented(); }},
        {"bare-cr", [](const Maker& m) { return m.withLineEnds("\r"); }},
        {"bare-lf", [](const Maker& m) { return m.withLineEnds("\n"); }},
        {"nul-in-lines", [](const Maker& m) { return m.nulInside(); }},
        {"only-quotes", [](const Maker& m) { return m.filled("\"", 10 * million); }},
        {"only-separators", [](const Maker& m) { return m.filled(m.flavour().separators, 10 * million); }},
        {"control-characters", [](const Maker& m) { return m.controls(); }},
        {"hostile-words", [](const Maker& m) { return m.hostile(); }},
        {"10-MB-word",
         [](const Maker& m) {
             return m.flavour().head + m.line(m.filled("W", 10 * million)) + "\r\n" + m.flavour().sound;
         }},
        {"10-MB-field", [](const Maker& m) { return m.longField(); }},
        {"same-line-100000",
         [](const Maker& m) {
             return m.flavour().head + Maker::repeated(m.line("CLASS") + "\r\n", m.scaled(million / 10));
         }},
        {"end-of-file-mark", [](const Maker& m) { return m.flavour().sound + "\x1A"; }},
        {"cut-at-a-quarter", [](const Maker& m) { return m.cut(0.25); }},
        {"cut-at-half", [](const Maker& m) { return m.cut(0.5); }},
        {"cut-at-nine-tenths", [](const Maker& m) { return m.cut(0.9); }},
        {"last-byte-missing",
         [](const Maker& m) { return m.flavour().sound.substr(0, m.flavour().sound.size() - 1); }},
    };
    return kinds;
}

} // namespace

const std::vector<std::string>& kindNames()
{
    static const std::vector<std::string> names = [] {
        std::vector<std::string> all;
        for (const auto& [name, make] : textKinds())
            all.push_back(name);
        const std::vector<std::string> pictures = pictureKinds();
        all.insert(all.end(), pictures.begin(), pictures.end());
        return all;
    }();
    return names;
}

Content badContent(std::string_view kind, const Flavour& flavour, SizeFactor factor)
{
    for (const auto& [name, make] : textKinds()) {
        if (name == kind)
            return make(Maker(flavour, factor));
    }
    return badPicture(kind, flavour.sound);
}

} // namespace kitwright::badinput
