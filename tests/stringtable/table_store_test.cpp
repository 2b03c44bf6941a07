// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "stringtable/table_store.h"

#include "../wizards/story.h"
#include "support/fake_host.h"
#include "support/scenario.h"

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

    void setText(const std::string& index, std::string text)
    {
        const std::string language = takeWord(text);
        table.setText(std::stoul(index), std::stoul(language), text);
    }

    /// A second save changes nothing.
    void save(const std::string& path)
    {
        EXPECT_FALSE(store.save(path));
        const std::map<std::string, std::string> saved = files;
        EXPECT_FALSE(store.save(path));
        EXPECT_EQ(files, saved);
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

    FakeContext fake;
    std::map<std::string, std::string>& files = fake.files.files;
    StringTable table;
    TableStore store{fake.files, fake.texts, table};
    Verbs verbs{
        {"add", [this](Word key, Word) { add(key); }},
        {"key", [this](Word index, Word key) { table.setKey(std::stoul(index), key); }},
        {"text", [this](Word index, Word text) { setText(index, text); }},
        {"clear", [this](Word index, Word) { table.setTicked(std::stoul(index), false); }},
        {"remove", [this](Word index, Word) { table.remove(std::stoul(index)); }},
        {"remove-all", [this](Word, Word) { table.removeAll(); }},
        {"open", [this](Word folder, Word) { EXPECT_FALSE(store.open(folder)); }},
        {"cannot-open", [this](Word folder, Word) { EXPECT_TRUE(store.open(folder)); }},
        {"save", [this](Word path, Word) { save(path); }},
        {"cannot-save", [this](Word path, Word) { EXPECT_TRUE(store.save(path)); }},
        {"put", [this](Word path, Word text) { files[path] = fake.codePage.encode(text); }},
        {"unwritable", [this](Word path, Word) { fake.files.unwritable.insert(path); }},
        {"holds", [this](Word path, Word text) { EXPECT_EQ(fake.codePage.decode(files[path]), text); }},
        {"absent", [this](Word path, Word) { EXPECT_FALSE(files.contains(path)); }},
        {"keys", [this](Word, Word expected) { EXPECT_EQ(keys(), expected); }},
        {"texts", [this](Word index, Word all) { EXPECT_EQ(joined(table.entry(std::stoul(index)).Texts), all); }},
        {"languages", [this](Word, Word expected) { EXPECT_EQ(joined(table.languages()), expected); }},
    };
};

PLAY_STORIES(TableStoreTest, "stringtable/table_store.story");

/// Every way of writing a record that one meets, in eight languages.
class HandWrittenTable : public TableStoreTest {
protected:
    const std::string file = scenarioText("stringtable/hand_written.csv");
};

TEST_F(HandWrittenTable, IsGivenBackUnchanged)
{
    for (const char* lineEnd : {"\r\n", "\n", "\r"}) {
        std::string text = file;
        replaceAll(text, "\r\n", lineEnd);
        files[fileA] = text;
        EXPECT_FALSE(store.open("/a/"));
        EXPECT_EQ(table.StringCount(), 201u);
        EXPECT_EQ(joined(table.languages()), "English|Czech|French|Klingon|GERMAN|Polish|Russian|");
        save(fileA);
        EXPECT_EQ(files[fileA], text);
        // To another folder it goes as a whole.
        files.erase(fileB);
        save(fileB);
        EXPECT_EQ(files[fileB], text);
    }
}

TEST_F(HandWrittenTable, ChangesOneRecordWhereOneTextChanged)
{
    for (std::size_t index = 0; index < 201; index += 9) {
        files[fileA] = file;
        store.open("/a/");
        table.setText(index, 2, "Fusil, \"grand\"");
        save(fileA);

        std::vector<TableRecord> expected = tableLines(fake.codePage.decode(file));
        for (TableRecord& line : expected) {
            if (!isTableRecord(line) || recordKey(line) != table.entry(index).Key)
                continue;
            line.fields.resize(std::max<std::size_t>(line.fields.size(), 3));
            line.fields[2] = withFieldText(line.fields[2], "Fusil, \"grand\"");
        }
        EXPECT_EQ(tableLines(fake.codePage.decode(files[fileA])), expected);
    }
}

} // namespace
} // namespace kitwright::testing
