// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/log.h"
#include "platform/qt_file_system.h"
#include "platform/report.h"
#include "stringtable/table_file.h"
#include "support/disturbed_session.h"
#include "support/haste.h"
#include "text/letter_case.h"
#include "text/text_files.h"
#include "text/windows_1250.h"
#include "widgets/picture_preview.h"

#include <QBuffer>
#include <QStringEncoder>
#include <gtest/gtest.h>

namespace kitwright::testing {

namespace {

using Bytes = QByteArray;

constexpr int million = 1'000'000;

/// The piece as often as so many bytes take.
Bytes filled(const Bytes& piece, qsizetype bytes)
{
    return piece.repeated((bytes + piece.size() - 1) / piece.size());
}

Bytes allBytes()
{
    Bytes all(256, '\0');
    std::iota(all.begin(), all.end(), '\0');
    return all;
}

/// A JPEG file whose header promises another size than the 8 by 8 pixels that it has.
Bytes picture(int width, int height)
{
    QImage image(8, 8, QImage::Format_RGB32);
    image.fill(Qt::red);
    Bytes bytes;
    QBuffer buffer(&bytes);
    image.save(&buffer, "JPG");
    qsizetype size = bytes.indexOf("\xFF\xC0") + 5; // Behind marker, length and bits a sample.
    for (const int part : {height >> 8, height, width >> 8, width})
        bytes[size++] = static_cast<char>(part);
    return bytes;
}

constexpr const char* words = R"(
%s%s%n%n %1 %99 $(reboot) -1e308,2; <b>help
../../etc/passwd,1
<img src="/dev/zero">,2; &amp;&Alt
$STRM_<b>,%s,<u>
)";

/// A kind of bad content, made of a file's sound one.
struct Kind {
    const char* name;
    Bytes (*of)(Bytes sound);
};

const Kind kinds[] = {
    {"Empty", [](Bytes) { return Bytes(); }},
    {"Nuls", [](Bytes sound) { return sound.replace('a', '\0') + Bytes(100, '\0'); }},
    {"AllBytes", [](Bytes) { return filled(allBytes(), million / 10); }},
    {"Utf16",
     [](Bytes sound) -> Bytes {
         return QStringEncoder(QStringEncoder::Utf16LE, QStringEncoder::Flag::WriteBom)(QString(sound));
     }},
    {"BareLf", [](Bytes sound) { return sound.replace('\r', ""); }},
    {"Words", [](Bytes sound) { return sound + words; }},
    {"EndlessLine", [](Bytes sound) { return filled(sound.simplified() + ' ', 2 * million); }},
    {"ManyLines", [](Bytes sound) { return filled(sound + "\r\n\r\n", 2 * million); }},
    {"ManyLevels",
     [](Bytes) {
         return filled("   class a {//VNORENI0VNORENI1\r\n      class a {//VNORENI0VNORENI1\r\n", million);
     }},
    {"Separators", [](Bytes) { return filled(",;", 2 * million); }},
    {"Quotes", [](Bytes) { return "$STRM_Q," + filled("\",", million / 10) + filled("\"", million); }},
    {"GiantField", [](Bytes sound) { return sound + "$STRM_G," + filled("W", million); }},
    {"Half", [](Bytes sound) { return sound.left(sound.size() / 2); }},
    {"GiantPicture", [](Bytes) { return picture(65'000, 64'000); }},
};

/// A session in which all files of a type are bad when they are first read.
struct SpoiltSession : DisturbedSession {
    SpoiltSession(const Kind& kind, const std::string& type)
    {
        disturb = [=, this](const std::string& path) {
            const bool isRead = app.files.fileExists(path) && !written.contains(path);
            if (isRead && path.ends_with(type) && !bad.contains(path))
                app.file(path) = bad[path] = kind.of(Bytes::fromStdString(app.file(path))).toStdString();
            return true;
        };
    }

    /// What was opened and saved is as it was, but for line ends and the letter case of keywords.
    void expectUntouched()
    {
        for (const auto& [path, bytes] : bad) {
            const std::string text = withCrLf(windows1250().decode(bytes));
            const bool isDocument = path == app.state().CurrentFile;
            EXPECT_TRUE(isDocument ? equalIgnoringCase(seen("document"), text) : app.file(path) == bytes) << path;
        }
    }

    std::map<std::string, std::string> bad;
};

struct BadFiles : ::testing::TestWithParam<Kind> {};

INSTANTIATE_TEST_SUITE_P(Of, BadFiles, ::testing::ValuesIn(kinds),
                         [](const auto& kind) { return kind.param.name; });

TEST_P(BadFiles, LeaveTheProgramAndOtherFilesSound)
{
    const Steps steps = readStories("bad_files.txt").at("");
    for (const char* type : {".cfg", ".dat", ".lng", ".cpp", ".csv", ".jpg", ".p3d"}) {
        SCOPED_TRACE(type);
        SpoiltSession session(GetParam(), type);
        session.act({steps.begin(), findWhen(steps)});
        session.expectUntouched();
        session.act({findWhen(steps) + 1, steps.end()});
        EXPECT_FALSE(session.bad.empty());
        Haste(session.app, 1).run(30);
        session.expectSaving();
    }
}

/// A session with files, and a document opened with its stringtable in sight, up to some steps.
struct Limits : ::testing::Test {
    void play(const std::string& steps)
    {
        const std::string opened = "start\nanswer open /addon/config.cpp\nclick cmdopen\nclick cmdstrings\n";
        session.play(storiesIn(opened + steps, "limits").at(""));
    }

    Session session;
    std::string& document = session.app.file("/addon/config.cpp");
    std::string& table = session.app.file("/addon/Stringtable.csv");
};

TEST_F(Limits, OfADocumentAreThoseOfItsLines)
{
    document = "ab\r\n" + std::string(million, 'x') + "\r\n";
    play("see file /addon/config.cpp");
    document.insert(4, "y");
    play("see file \"\"");
}

TEST_F(Limits, OfAStringtableAreThoseOfColumnsFieldsAndTexts)
{
    const auto line = [](const Bytes& start, int fields) { return start + Bytes(fields - 1, ',') + "\r\n"; };
    const Bytes widest = line("$STRM_A", 10'000);
    const Bytes most = widest.repeated(200);
    const std::pair<Bytes, bool> cases[] = {{line("LANGUAGE", 1'000) + widest, false},
                                            {line("LANGUAGE", 1'001), true},
                                            {line("$STRM_A", 10'001), true},
                                            {most, false},
                                            {most + "$STRM_B", true}};
    for (const auto& [text, tooLarge] : cases)
        EXPECT_EQ(parseTable(text.toStdString()).tooLarge, tooLarge) << text.size();
    table = cases[1].first.toStdString();
    play("click Form4.Command1\ntype Form4.Text1 A\nclick Form4.Command5\n");
    EXPECT_TRUE(table == cases[1].first.toStdString());
}

TEST_F(Limits, OfTextsAndLanguagesAreThoseOfTheirBoxes)
{
    std::string& languages = session.app.file("/program/Bfdata/kitwright/languages.dat") = "English\r\n";
    for (int number = 0; number < 1'000; ++number)
        languages += std::to_string(number) + "\r\n";
    table = "LANGUAGE,English\r\n$STRM_A," + std::string(100'000, 'x') + "\r\n$STRM_B," + std::string(100'001, 'x');
    play("see Form4.List2:count 1000\n"
         "click Form4.List1 \"String 1\"\nclick Form4.List2 English\nsee Form4.Text2:readOnly false\n"
         "click Form4.List1 \"String 2\"\nclick Form4.List2 English\nsee Form4.Text2:readOnly true\n");
}

TEST_F(Limits, OfPicturesReportsAndPathsAreKept)
{
    PicturePreview preview;
    const std::tuple<int, int, bool> pictures[] = {
        {6'000, 6'000, true}, {6'000, 6'001, false}, {20'000, 1, true}, {20'001, 1, false}, {0, 0, false}};
    for (const auto& [width, height, shown] : pictures)
        EXPECT_EQ(preview.showPicture(picture(width, height).toStdString()), shown) << width << " x " << height;

    reports.clear();
    report(lcApp(), "opening", "a\x1B\nb" + std::string(5'000, 'x'));
    EXPECT_EQ(reports.at(0), "opening: a??b" + std::string(996, 'x') + "\u2026");

    QtFileSystem disk;
    const std::string path("/tmp\0", 5);
    EXPECT_FALSE(disk.fileExists(path) || disk.readBytes(path) || disk.listFiles(path));
    EXPECT_TRUE(disk.writeBytes(path, "x"));
}

} // namespace

} // namespace kitwright::testing
