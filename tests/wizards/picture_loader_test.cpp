// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "wizards/picture_loader.h"

#include "support/memory_file_system.h"
#include "support/scenario.h"

#include <QTest>
#include <gtest/gtest.h>

namespace kitwright {

TEST(PictureLoader, ReadsNoPictureThatQuickChoicesPass)
{
    testing::MemoryFileSystem files;
    int read = 0;
    files.before = [&read](const auto&...) { return ++read > 0; };
    PicturePreview preview;
    PictureLoader loader(preview, files);
    for (const char* path : {"/a.jpg", "/b.jpg", "/none.jpg", "/c.jpg"}) {
        if (std::string_view(path) != "/none.jpg")
            files.files[path] = testing::scenarioText("pictures/two_to_one.jpg");
        loader.show(path);
    }
    EXPECT_EQ(read, 1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return read == 2; }));
    loader.show("/c.jpg");
    QTest::qWait(300);
    EXPECT_EQ(read, 2) << "shown already";
    loader.show("/b.jpg");
    loader.show("/a.jpg");
    loader.clear();
    QTest::qWait(300);
    EXPECT_EQ(read, 3) << "no longer wanted";
}

} // namespace kitwright
