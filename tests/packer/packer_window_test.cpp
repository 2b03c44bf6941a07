// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "packer/packer_window.h"

#include "packer/translation.h"
#include "platform/qt_file_streams.h"
#include "platform/qt_file_system.h"
#include "platform/qt_sha1.h"
#include "platform/qt_text.h"
#include "services/settings.h"
#include "text/windows_1250.h"

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace kitwright {
namespace {

namespace fs = std::filesystem;

/// An add-on in a folder with blanks and a comma in its name.
struct Packer : ::testing::Test {
    Packer()
    {
        fs::create_directories(at("my add-on, new/data"));
        fs::create_directory(at("packed"));
        put("my add-on, new/config.cpp", config("Mine"));
        put("my add-on, new/data/m.p3d~", "x");
    }

    static std::string config(const std::string& name)
    {
        return "class CfgPatches {\r\n class " + name + " {}; };";
    }
    std::string at(const std::string& name) const { return fromQt(dir.path()) + '/' + name; }
    void put(const std::string& name, const std::string& bytes) const { std::ofstream(at(name)) << bytes; }
    bool isThere(const std::string& name) const { return fs::exists(at(name)); }

    std::optional<PackerRequest> request(const std::string& words) const
    {
        return readRequest(files, fromQt(toQt(words).replace(QLatin1Char('@'), dir.path() + QLatin1Char('/'))));
    }

    /// Starts a window on the add-on.
    void start()
    {
        window = std::make_unique<PackerWindow>(surroundings,
                                                request("  @my add-on, new/config.cpp,@packed\\Mine.pbo,2"));
        window->show();
        window->start();
    }

    template <class Control>
    Control& control(const char* name) const
    {
        return *window->findChild<Control*>(QLatin1String(name));
    }

    bool waitFor(const char* text) const
    {
        return QTest::qWaitFor([&] { return control<QLabel>("lblresult").text().contains(QLatin1String(text)); });
    }

    void click(const char* name) const { QTest::mouseClick(&control<QPushButton>(name), Qt::LeftButton); }

    QTemporaryDir dir;
    QtFileSystem files;
    QtFileStreams streams;
    QtSha1 sha1;
    std::vector<std::string> errors;
    std::string shown;
    PackerSurroundings surroundings{{files, streams, windows1250(), sha1},
                                    [this](const std::string&) { return errors; },
                                    [this](const std::string& folder) {
                                        shown = folder;
                                        return Failure();
                                    }};
    std::unique_ptr<PackerWindow> window;
};

TEST_F(Packer, TakesTheArgumentApartWhereADocumentIs)
{
    put("a", "");
    put("a,b", "");
    struct Case {
        const char* argument;
        const char* document;
        const char* archive;
    };
    for (const Case& handed :
         std::vector<Case>{{"  @a,@packed/c.pbo,2", "a", "packed/c.pbo"},
                           {"@a,b,@packed\\c,d.pbo,2", "a,b", "packed\\c,d.pbo"},
                           {"@my add-on, new/config.cpp,@packed/,,2", "my add-on, new/config.cpp", "packed/,"},
                           {"@a,@none/c.pbo,2", "a", "none/c.pbo"}}) {
        const auto found = request(handed.argument);
        ASSERT_TRUE(found) << handed.argument;
        EXPECT_EQ(found->document, at(handed.document));
        EXPECT_EQ(found->archive, at(handed.archive));
    }
    for (const char* wrong : {"", "2", ",2", "@a,2", "@a,,2", "@none,@packed/c.pbo,2", "@a,@packed/c.pbo"})
        EXPECT_FALSE(request(wrong)) << wrong;
}

TEST_F(Packer, PacksAndShowsWhere)
{
    start();
    EXPECT_TRUE(waitFor("1 file(s) packed"));
    EXPECT_TRUE(isThere("packed/Mine.pbo"));
    EXPECT_EQ(fromQt(control<QListWidget>("lstfiles").item(0)->text()),
              "data\\m.p3d~ (a backup or temporary file)");
    click("cmdfolder");
    EXPECT_EQ(shown, fs::canonical(at("packed")).string() + '/');
    click("cmdclose");
    EXPECT_EQ(window->result(), QDialog::Accepted);
}

TEST_F(Packer, AsksBeforeItPacksErrorsOrOverAnotherAddon)
{
    put("my add-on, new/config.cpp", config("Other"));
    start();
    ASSERT_TRUE(waitFor("packed"));
    const auto before = fs::last_write_time(at("packed/Mine.pbo"));
    put("my add-on, new/config.cpp", config("Mine"));

    errors = {"config.cpp:1: a brace is missing"};
    start();
    EXPECT_TRUE(waitFor("1 error"));
    EXPECT_EQ(control<QListWidget>("lstfiles").count(), 1);
    click("cmdanyway");
    EXPECT_TRUE(waitFor("patch class is Other, that of the config is Mine"));
    EXPECT_EQ(control<QListWidget>("lstfiles").count(), 0);
    EXPECT_EQ(fs::last_write_time(at("packed/Mine.pbo")), before);
    click("cmdclose");
    EXPECT_EQ(window->result(), QDialog::Rejected);

    errors.clear();
    start();
    EXPECT_TRUE(waitFor("patch class"));
    click("cmdanyway");
    EXPECT_TRUE(waitFor("packed"));
    EXPECT_NE(fs::last_write_time(at("packed/Mine.pbo")), before);
}

TEST_F(Packer, SaysWhyThereIsNoArchiveAndStopsWhenItIsClosed)
{
    fs::create_directory(at("packed/Mine.pbo"));
    start();
    EXPECT_TRUE(waitFor("not a regular file"));
    EXPECT_FALSE(control<QPushButton>("cmdfolder").isEnabled());
    fs::remove(at("packed/Mine.pbo"));

    put("my add-on, new/big", "");
    fs::resize_file(at("my add-on, new/big"), 0xF000'0000);
    start();
    ASSERT_TRUE(waitFor("Packing..."));
    QTest::keyClick(window.get(), Qt::Key_Escape);
    EXPECT_EQ(window->result(), QDialog::Rejected);
    EXPECT_FALSE(isThere("packed/Mine.pbo"));

    window = std::make_unique<PackerWindow>(surroundings, std::nullopt);
    window->start();
    EXPECT_TRUE(waitFor("Make Pbo"));
}

TEST_F(Packer, SpeaksTheEditorsLanguage)
{
    const std::string folder = fromQt(dir.path());
    EXPECT_EQ(chosenLanguage(files, windows1250(), folder), QString());
    EditorSettings settings;
    for (const auto& [file, code] :
         {std::pair("/x/Polski.lng", "pl"), {"C:\\y\\cestina.lng", "cs"}, {"/my.lng", ""}}) {
        settings.LanguageFile = file;
        EXPECT_EQ(SaveSettings(files, windows1250(), at("Kitwright.cfg"), settings), Failure());
        EXPECT_EQ(chosenLanguage(files, windows1250(), folder), QLatin1String(code));
    }
}

} // namespace
} // namespace kitwright
