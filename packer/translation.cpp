// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "packer/translation.h"

#include "platform/qt_text.h"
#include "services/paths.h"
#include "services/settings.h"
#include "text/letter_case.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

#include <array>

namespace kitwright {

QString chosenLanguage(const FileSystem& files, const CodePage& codePage, const std::string& programFolder)
{
    struct Language {
        const char* file;
        const char* code;
    };
    constexpr std::array<Language, 5> languages = {{{"cestina.lng", "cs"},
                                                    {"english.lng", "en"},
                                                    {"deutsch.lng", "de"},
                                                    {"polski.lng", "pl"},
                                                    {"slovencina.lng", "sk"}}};
    const std::string path = programFolder + "/Kitwright.cfg";
    EditorSettings settings;
    if (!files.fileExists(path) || LoadSettings(files, codePage, path, settings))
        return {};
    for (const Language& language : languages) {
        if (equalIgnoringCase(FileNameOf(settings.LanguageFile), language.file))
            return QLatin1String(language.code);
    }
    return {};
}

void speak(const QString& language, QCoreApplication& program, const std::string& programFolder)
{
    if (language.isEmpty())
        return;
    QLocale::setDefault(QLocale(language));
    auto* texts = new QTranslator(&program);
    if (texts->load(QStringLiteral("kitwright_") + language, toQt(programFolder) + QStringLiteral("/translations")))
        QCoreApplication::installTranslator(texts);
}

} // namespace kitwright
