// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "stringtable/table_store.h"

#include "platform/windows_1250.h"
#include "support/memory_file_system.h"
#include "support/scenario.h"

#include <gtest/gtest.h>

#include <regex>

namespace kitwright::testing {
namespace {

const std::string fileA = "/a/Stringtable.csv";
const std::string fileB = "/b/Stringtable.csv";

/// A table of English and Czech with its files in memory.
class TableStoreTest : public ::testing::TestWithParam<Story> {
protected:
    TableStoreTest()
    {
        table.addLanguage("English");
        table.addLanguage("Czech");
    }

    void add(const std::string& key)
    {
        table.add();
        table.setKey(table.StringCount() - 1, key);
    }

    /// Of key 2 in language 1 when the place is "2,1".
    void setText(const std::string& place, const std::string& text)
    {
        table.setText(std::stoul(place), std::stoul(place.substr(place.find(',') + 1)), text);
    }

    /// A second save changes nothing.
    void save(const std::string& path)
    {
        EXPECT_FALSE(store.save(path));
        const std::map<std::string, std::string> saved = disk.files;
        EXPECT_FALSE(store.save(path));
        EXPECT_EQ(disk.files, saved);
    }

    std::string keys() const
    {
        std::string result;
        for (std::size_t i = 0; i < table.StringCount(); ++i)
            result += (i == 0 ? "" : " ") + table.entry(i).Key;
        return result;
    }

    static std::string joined(const std::vector<std::string>& texts)
    {
        std::string result;
        for (const std::string& text : texts)
            result += text + '|';
        return result;
    }

    using Word = const std::string&;

    MemoryFileSystem disk;
    TextFiles texts{disk, windows1250()};
    StringTable table;
    TableStore store{disk, texts, table};
    const Verbs verbs{
        {"add", [this](Word key, Word) { add(key); }},
        {"key", [this](Word index, Word key) { table.setKey(std::stoul(index), key); }},
        {"text", [this](Word place, Word text) { setText(place, text); }},
        {"untick", [this](Word index, Word) { table.setTicked(std::stoul(index), false); }},
        {"remove", [this](Word index, Word) { table.remove(std::stoul(index)); }},
        {"remove-all", [this](Word, Word) { table.removeAll(); }},
        {"open", [this](Word folder, Word) { EXPECT_FALSE(store.open(folder)); }},
        {"cannot-open", [this](Word folder, Word) { EXPECT_TRUE(store.open(folder)); }},
        {"save", [this](Word path, Word) { save(path); }},
        {"cannot-save", [this](Word path, Word) { EXPECT_TRUE(store.save(path)); }},
        {"put", [this](Word path, Word text) { disk.files[path] = windows1250().encode(text); }},
        {"lock", [this](Word path, Word) { disk.unwritable.insert(path); }},
        {"stored", [this](Word path, Word text) { EXPECT_EQ(windows1250().decode(disk.files[path]), text); }},
        {"missing", [this](Word path, Word) { EXPECT_FALSE(disk.fileExists(path)); }},
        {"keys", [this](Word expected, Word) { EXPECT_EQ(keys(), expected); }},
        {"texts", [this](Word index, Word all) { EXPECT_EQ(joined(table.entry(std::stoul(index)).Texts), all); }},
        {"languages", [this](Word expected, Word) { EXPECT_EQ(joined(table.languages()), expected); }},
    };
};

TEST_P(TableStoreTest, GoesAsWritten)
{
    play(GetParam().steps, [this](const Step& step) { perform(step, verbs); });
}

INSTANTIATE_TEST_SUITE_P(Told, TableStoreTest, ::testing::ValuesIn(readStories("stringtable/table_store.txt")),
                         [](const auto& told) { return told.param.name; });

/// Every way of writing a record that one meets, in eight languages.
class HandWrittenTable : public TableStoreTest {
protected:
    const std::string file = scenarioText("stringtable/hand_written.csv");
};

TEST_F(HandWrittenTable, IsGivenBackUnchanged)
{
    for (const char* lineEnd : {"\r\n", "\n", "\r"}) {
        const std::string text = std::regex_replace(file, std::regex("\r\n"), lineEnd);
        disk.files[fileA] = text;
        EXPECT_FALSE(store.open("/a/"));
        EXPECT_EQ(table.StringCount(), 201u);
        EXPECT_EQ(joined(table.languages()), "English|Czech|French|Klingon|GERMAN|Polish|Russian|");
        save(fileA);
        EXPECT_EQ(disk.files[fileA], text);
        // To another folder it goes as a whole.
        disk.files.erase(fileB);
        save(fileB);
        EXPECT_EQ(disk.files[fileB], text);
    }
}

TEST_F(HandWrittenTable, ChangesOneRecordWhereOneTextChanged)
{
    for (std::size_t index = 0; index < 201; index += 9) {
        disk.files[fileA] = file;
        store.open("/a/");
        table.setText(index, 2, "Fusil, \"grand\"");
        save(fileA);

        std::vector<TableRecord> expected = tableLines(windows1250().decode(file));
        for (TableRecord& line : expected) {
            if (!isTableRecord(line) || recordKey(line) != table.entry(index).Key)
                continue;
            line.fields.resize(std::max<std::size_t>(line.fields.size(), 3));
            line.fields[2] = withFieldText(line.fields[2], "Fusil, \"grand\"");
        }
        EXPECT_EQ(tableLines(windows1250().decode(disk.files[fileA])), expected);
    }
}

} // namespace
} // namespace kitwright::testing
