// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "stringtable/table_store.h"

#include "support/fake_host.h"

#include <gtest/gtest.h>

namespace kitwright {
namespace {

const std::string fileA = "/a/Stringtable.csv";
const std::string fileB = "/b/Stringtable.csv";

/// A table of English and Czech with its files in memory.
class TableStoreTest : public ::testing::Test {
protected:
    TableStoreTest()
    {
        table.addLanguage("English");
        table.addLanguage("Czech");
    }

    void add(const std::string& key, const std::vector<std::string>& texts)
    {
        table.add();
        const std::size_t index = table.StringCount() - 1;
        table.setKey(index, key);
        for (std::size_t language = 0; language < texts.size(); ++language)
            table.setText(index, language, texts[language]);
    }

    /// The position of a key; fails when it is not there.
    std::size_t find(const std::string& key) const
    {
        std::size_t index = 0;
        while (index < table.StringCount() && table.entry(index).Key != key)
            ++index;
        EXPECT_LT(index, table.StringCount()) << key;
        return index;
    }

    std::vector<std::string> keys() const
    {
        std::vector<std::string> result;
        for (std::size_t i = 0; i < table.StringCount(); ++i)
            result.push_back(table.entry(i).Key);
        return result;
    }

    testing::FakeContext fake;
    std::map<std::string, std::string>& files = fake.files.files;
    StringTable table;
    TableStore store{fake.files, fake.texts, table};
};

TEST_F(TableStoreTest, WritesThePlainFormatWhenNothingWasRead)
{
    add("NAME_A", {"Gun", "Pu\u0161ka"});
    add("NAME_B", {"no", "ne"});
    table.setTicked(1, false);
    add("", {"a,b", "\"c\r\nd"});
    EXPECT_FALSE(store.save(fileA));
    EXPECT_EQ(files[fileA], "LANGUAGE,English,Czech\r\n$STRM_NAME_A,Gun,Pu\x9Aka\r\n$STRM_,a,b,\"c\r\nd\r\n");
}

/// Eight languages, and every way of writing a record that one meets, in an order that is always the same.
std::string handWrittenTable(const std::string& lineEnd)
{
    const std::vector<std::string> texts{"Gun",     "\"Gun, long\"",  "\"a \"\"Gun\"\"\"",       "",    " \"Gun\" ",
                                         "5\" Gun", "\"two\nlines\"", "P\xF8\xEDli\x9A\xA0\x81", "\"\""};
    const std::vector<std::string> others{"",   "// don't, \"touch", "STR_OTHER,Other,\"Jin\xE9\"",
                                          "  ", "COMMENT,,,",        "$STR_X,\"unclosed"};
    std::string file =
        "// made by hand" + lineEnd + "LANGUAGE, english,French,Czech,Klingon,GERMAN,Polish,Russian,," + lineEnd;
    unsigned random = 7;
    const auto pick = [&](std::size_t count) {
        random = random * 1103515245u + 12345u;
        return (random >> 16) % count;
    };
    for (int record = 0; record < 200; ++record) {
        if (pick(4) == 0)
            file += others[pick(others.size())] + lineEnd;
        file += (pick(5) == 0 ? "\"$STRM_K" + std::to_string(record) + "\"" : "$STRM_K" + std::to_string(record));
        for (std::size_t field = pick(11); field > 0; --field)
            file += ',' + texts[pick(texts.size())];
        file += pick(6) == 0 ? ",," + lineEnd : lineEnd;
    }
    return file + "$STRM_LAST,Gun";
}

TEST_F(TableStoreTest, GivesAHandWrittenTableBackUnchanged)
{
    for (const char* lineEnd : {"\r\n", "\n", "\r"}) {
        const std::string file = handWrittenTable(lineEnd);
        files[fileA] = file;
        EXPECT_FALSE(store.open("/a/"));
        EXPECT_EQ(table.StringCount(), 201u);
        const std::vector<std::string> languages{"English", "Czech",  "French", "Klingon",
                                                 "GERMAN",  "Polish", "Russian"};
        EXPECT_EQ(table.languages(), languages);
        EXPECT_FALSE(store.save(fileA));
        EXPECT_EQ(files[fileA], file);
        // To another folder it goes as a whole.
        files.erase(fileB);
        EXPECT_FALSE(store.save(fileB));
        EXPECT_EQ(files[fileB], file);
    }
}

TEST_F(TableStoreTest, ChangesOneRecordOnlyWhereOneTextChanged)
{
    const std::string file = handWrittenTable("\r\n");
    for (int record = 0; record < 200; record += 9) {
        files[fileA] = file;
        store.open("/a/");
        const std::string key = "K" + std::to_string(record);
        table.setText(find(key), 2, "Fusil, \"grand\"");
        store.save(fileA);

        std::vector<TableRecord> expected = tableLines(fake.codePage.decode(file));
        for (TableRecord& line : expected) {
            if (!isTableRecord(line) || recordKey(line) != key)
                continue;
            line.fields.resize(std::max<std::size_t>(line.fields.size(), 3));
            line.fields[2] = withFieldText(line.fields[2], "Fusil, \"grand\"");
        }
        EXPECT_EQ(tableLines(fake.codePage.decode(files[fileA])), expected);
    }
}

struct EditCase {
    const char* name;
    const char* before;
    void (*edit)(StringTable& table);
    const char* after;
};

TEST_F(TableStoreTest, WritesAnAuthorsEditsIntoTheFileThatWasRead)
{
    const EditCase cases[] = {
        {"back to what it was", "LANGUAGE,English\n$STRM_A,\"x\ny\"\n",
         [](StringTable& t) {
             t.setText(0, 0, "z");
             t.setText(0, 0, "x\r\ny");
         },
         "LANGUAGE,English\n$STRM_A,\"x\ny\"\n"},
        {"another key name", "LANGUAGE,English\r\n \"$STRM_A\",x\r\n", [](StringTable& t) { t.setKey(0, "B"); },
         "LANGUAGE,English\r\n \"$STRM_B\",x\r\n"},
        {"a ragged row grows", "LANGUAGE,German,Czech,English\r\n$STRM_A\r\n$STRM_B,x,,,,\r\n",
         [](StringTable& t) { t.setText(0, 0, "e"); },
         "LANGUAGE,German,Czech,English\r\n$STRM_A,,,e\r\n$STRM_B,x,,,,\r\n"},
        {"a missing language comes behind what ragged rows hold", "LANGUAGE,English\r\n$STRM_A,big, bad\r\n",
         [](StringTable& t) { t.setText(0, 1, "c"); }, "LANGUAGE,English,,Czech\r\n$STRM_A,big, bad,c\r\n"},
        {"an unticked key's text brings no column", "LANGUAGE,English\r\n$STRM_A,a\r\n",
         [](StringTable& t) {
             t.setText(0, 1, "c");
             t.setTicked(0, false);
         },
         "LANGUAGE,English\r\n"},
        {"removed among other lines, the last line without an end",
         "LANGUAGE,English\r\n//1\r\n$STRM_A,a\r\n//2\r\n$STRM_B,b", [](StringTable& t) { t.remove(1); },
         "LANGUAGE,English\r\n//1\r\n$STRM_A,a\r\n//2\r\n"},
        {"all removed", "LANGUAGE,English\r\n//1\r\n$STRM_A,a\r\nSTR_B,b\r\n$STRM_B,b\r\n\r\n",
         [](StringTable& t) { t.removeAll(); }, "LANGUAGE,English\r\n//1\r\nSTR_B,b\r\n\r\n"},
        {"added in front of empty lines at the end", "LANGUAGE,Czech,English\n$STRM_A,a\n//end\n\n \n",
         [](StringTable& t) {
             t.add();
             t.setKey(1, "B");
             t.setText(1, 0, "e");
         },
         "LANGUAGE,Czech,English\n$STRM_A,a\n//end\n$STRM_B,,e\n\n \n"},
        {"added behind a last line without an end, then removed", "LANGUAGE,English\r\n$STRM_A,a\r\n//end",
         [](StringTable& t) {
             t.add();
             t.remove(1);
         },
         "LANGUAGE,English\r\n$STRM_A,a\r\n//end"},
        {"added behind a record without a line end", "LANGUAGE,English\r\n$STRM_A,a",
         [](StringTable& t) { t.add(); }, "LANGUAGE,English\r\n$STRM_A,a\r\n$STRM_,\r\n"},
        {"a file without a header gets one with its first change", "$STRM_A,a,b\r\n",
         [](StringTable& t) { t.setText(0, 1, "c"); }, "LANGUAGE,English,Czech\r\n$STRM_A,a,c\r\n"},
        {"an empty file", "", [](StringTable& t) { t.add(); }, "LANGUAGE,English,Czech\r\n$STRM_,,\r\n"},
    };
    for (const EditCase& c : cases) {
        files[fileA] = c.before;
        store.open("/a/");
        c.edit(table);
        for (int save = 0; save < 2; ++save) {
            EXPECT_FALSE(store.save(fileA));
            EXPECT_EQ(files[fileA], c.after) << c.name;
        }
        table.removeAll();
    }
}

TEST_F(TableStoreTest, TakesInTheTableOfAnotherFolder)
{
    files[fileB] =
        "LANGUAGE,Klingon,English\r\n//theirs\r\n$STRM_OLD,k,o\r\n$STRM_BOTH,k,theirs,extra\r\nSTR_X,1\r\n";
    add("NEW", {"n", ""});
    add("BOTH", {"mine", ""});
    add("OLD", {"not ticked", ""});
    table.setTicked(2, false);
    EXPECT_FALSE(store.save(fileB));
    EXPECT_EQ(keys(), (std::vector<std::string>{"NEW", "BOTH", "OLD", "OLD"}));
    EXPECT_EQ(table.entry(1).Texts, (std::vector<std::string>{"mine", "", "k"}));
    EXPECT_EQ(files[fileB], "LANGUAGE,Klingon,English\r\n$STRM_NEW,,n\r\n$STRM_BOTH,k,mine,extra\r\n"
                            "//theirs\r\n$STRM_OLD,k,o\r\nSTR_X,1\r\n");
}

TEST_F(TableStoreTest, MovesItsOwnFileUnderTheHeaderOfTheOther)
{
    files[fileA] = "LANGUAGE,English,French\r\n//same\r\nSTR_A,e,f\r\n$STRM_A,\"e\",f\r\n$STRM_BOTH,mine,\r\n//end";
    files[fileB] = "LANGUAGE,Czech,English\r\n//same\r\n$STRM_BOTH,c,theirs\r\n$STRM_B,c,e\r\n//end\r\n";
    store.open("/a/");
    store.save(fileB);
    EXPECT_EQ(files[fileB],
              "LANGUAGE,Czech,English,French\r\nSTR_A,,e,f\r\n$STRM_A,,\"e\",f\r\n//same\r\n$STRM_BOTH,c,mine\r\n"
              "$STRM_B,c,e\r\n//end\r\n");
}

TEST_F(TableStoreTest, TakesInWhatSomeoneElseChangedSince)
{
    files[fileA] = "LANGUAGE,English,Czech\r\n$STRM_A,a,a\r\n$STRM_B,b,b\r\n$STRM_C,c,c\r\n$STRM_D,d,d\r\n";
    store.open("/a/");
    table.setText(0, 0, "mine");
    table.setKey(1, "BB");
    table.remove(2);
    table.setTicked(2, false);
    files[fileA] =
        "LANGUAGE,Czech,English\r\n//new\r\n$STRM_A,theirs,a\r\n$STRM_B,x,b\r\n$STRM_C,c,c\r\n$STRM_D,d,d\r\n"
        "$STRM_E,e,e\r\n";
    EXPECT_FALSE(store.save(fileA));
    EXPECT_EQ(files[fileA],
              "LANGUAGE,Czech,English\r\n//new\r\n$STRM_A,theirs,mine\r\n$STRM_BB,x,b\r\n$STRM_E,e,e\r\n");
}

TEST_F(TableStoreTest, AnotherDocumentTakesTheFormerOnesKeysAway)
{
    files[fileA] = "LANGUAGE,English,Klingon\r\n$STRM_A,a,k\r\n";
    files[fileB] = "LANGUAGE,English\r\n$STRM_B,b\r\n";
    add("NEVER", {"n"});
    table.setTicked(0, false);
    store.open("/a/");
    add("SAVED", {"s"});
    store.save(fileA);
    add("LATE", {"l"});
    store.open("/b/");
    EXPECT_EQ(keys(), (std::vector<std::string>{"NEVER", "LATE", "B"}));
    EXPECT_EQ(table.languages(), (std::vector<std::string>{"English", "Czech"}));
    store.open("/nothing/");
    EXPECT_EQ(keys(), (std::vector<std::string>{"NEVER", "LATE"}));
    store.save("/nothing/Stringtable.csv");
    EXPECT_EQ(files["/nothing/Stringtable.csv"], "LANGUAGE,English,Czech\r\n$STRM_LATE,l,\r\n");
}

TEST_F(TableStoreTest, NeverWritesOverWhatItCouldNotRead)
{
    const std::string wide("L\0A\0,\0", 6);
    files[fileA] = wide;
    EXPECT_TRUE(store.open("/a/"));
    add("NEW", {"n"});
    EXPECT_TRUE(store.save(fileA));
    EXPECT_EQ(files[fileA], wide);
    EXPECT_FALSE(table.belongsToFile(0));
    // It can be read again by now.
    files[fileA] = "LANGUAGE,English\r\n$STRM_A,a\r\n";
    EXPECT_FALSE(store.save(fileA));
    EXPECT_EQ(files[fileA], "LANGUAGE,English\r\n$STRM_NEW,n\r\n$STRM_A,a\r\n");

    fake.files.unwritable.insert(fileB);
    EXPECT_TRUE(store.save(fileB));
    EXPECT_FALSE(files.contains(fileB));
}

TEST_F(TableStoreTest, FindsAFileWhoseNameDiffersInLetterCase)
{
    files["/a/stringtable.CSV"] = "LANGUAGE,English\r\n$STRM_A,a\r\n";
    store.open("/a/");
    table.setText(0, 0, "b");
    EXPECT_FALSE(store.save(fileA));
    EXPECT_EQ(files["/a/stringtable.CSV"], "LANGUAGE,English\r\n$STRM_A,b\r\n");
    EXPECT_FALSE(files.contains(fileA));
}

} // namespace
} // namespace kitwright
