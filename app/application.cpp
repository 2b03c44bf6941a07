// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/application.h"

#include "app/index_window.h"
#include "app/log.h"
#include "app/settings_dialog.h"
#include "app/wait_window.h"
#include "lang/apply_language.h"
#include "lang/language_chooser.h"
#include "lang/language_folder.h"
#include "platform/qt_text.h"
#include "platform/report.h"
#include "services/folder_chooser.h"
#include "services/paths.h"
#include "stringtable/stringtable_window.h"
#include "tools/about_window.h"
#include "tools/colour_maker.h"
#include "wizards/class_wizard.h"
#include "wizards/face_wizard.h"
#include "wizards/vehicle_wizard.h"

#include <QCoreApplication>

#include <vector>

/// The icons lie in a static library, whose resources are only there once they are asked for.
static void initIcons()
{
    Q_INIT_RESOURCE(icons);
}

namespace kitwright {

namespace {

constexpr const char* classFile = "/Bfdata/kitwright/configclass.dat";
constexpr const char* commandFile = "/Bfdata/kitwright/configcommands.dat";
constexpr const char* vehicleFile = "/Bfdata/kitwright/kitwrightvehicles.dat";

} // namespace

Application::Application(FileSystem& files, TextFiles& texts, Dialogs& dialogs, ProgramLauncher& launcher,
                         const std::string& programFolder)
    : m_context{.files = files,
                .texts = texts,
                .dialogs = dialogs,
                .launcher = launcher,
                .report = [](const char* step, const Failure& failure) { report(lcApp(), step, failure); }},
      m_strings(m_context),
      m_main((initIcons(), m_context), m_strings, m_classTree, m_commandTree, m_keywords)
{
    m_context.state.programFolder = programFolder;
    m_context.host = &m_main;
    connectMainWindow();
}

Application::~Application() = default;

void Application::connectMainWindow()
{
    const auto when = [this](auto signal, auto handler) { QObject::connect(&m_main, signal, &m_main, handler); };
    when(&fmrconfigedit::modalWanted, [this](std::string_view name) { showModal(name); });
    when(&fmrconfigedit::besideWanted, [this](std::string_view name) { showBeside(name); });
    when(&fmrconfigedit::fullPassBegins, [this](std::size_t length) { windowAs<Form2>("Form2").announce(length); });
    when(&fmrconfigedit::fullPassEnds, [this] { windowAs<Form2>("Form2").hide(); });
    when(&fmrconfigedit::endWanted, [this] { UnloadAllWindows(); });
    when(&fmrconfigedit::closing, [this] { saveSettings(); });
}

void Application::start()
{
    loadClasses();
    loadCommands();
    m_main.showTrees();
    m_context.report("reading the languages of stringtables", m_strings.loadLanguages());
    loadSettings();
    for (const std::string_view word : {"#define", "class", "CfgPatches"})
        m_keywords.add(word, KeywordClass::CLanguageWord);
    windowAs<frmrejstrik2>("frmrejstrik2").showKeywords();
    loadVehicles();
    m_main.startColouring();
}

bool Application::existsOrReport(const std::string& path)
{
    const bool exists = m_context.files.fileExists(path);
    if (!exists)
        m_context.dialogs.showMessage("Missing: " + path + "\r\n");
    return exists;
}

void Application::loadClasses()
{
    const std::string path = m_context.inProgramFolder(classFile);
    if (!existsOrReport(path))
        return;
    m_context.report("loading the classes", NactiTridy(m_context.texts, path, m_classTree));
    m_context.report("loading the class names",
                     NactiPrikazyConfig(m_context.texts, path, KeywordClass::ClassName, m_keywords));
}

void Application::loadCommands()
{
    const std::string path = m_context.inProgramFolder(commandFile);
    // Tree and keywords ask for the file on their own, so a missing one is told twice.
    if (existsOrReport(path))
        m_context.report("loading the commands", NactiTridy(m_context.texts, path, m_commandTree));
    if (existsOrReport(path)) {
        m_context.report("loading the command keywords",
                         NactiPrikazyConfig(m_context.texts, path, KeywordClass::ConfigCommand, m_keywords));
    }
}

void Application::loadSettings()
{
    EditorSettings& settings = m_context.state.Settings;
    settings = EditorSettings();
    if (m_context.files.fileExists(settingsPath())) {
        const Failure failure = LoadSettings(m_context.files, m_context.texts.codePage(), settingsPath(), settings);
        m_context.report("reading the settings", failure);
        if (failure)
            m_insteadOfUnread = settings;
        findLanguage();
        if (!settings.LanguageFile.empty())
            applyLanguage(settings.LanguageFile);
        return;
    }
    saveSettings();
    settings.PboFolder = m_context.state.programFolder;
    showModal("Form7");
}

/// A program folder that was moved, or whose name the settings cannot hold, keeps the language that was chosen in it.
void Application::findLanguage()
{
    std::string& chosen = m_context.state.Settings.LanguageFile;
    const std::string own = m_context.inProgramFolder(languageFolder) + '/' + FileNameOf(chosen);
    if (!m_context.files.fileExists(chosen) && m_context.files.fileExists(own))
        chosen = own;
}

void Application::loadVehicles()
{
    auto& wizard = windowAs<frmvehikl>("frmvehikl");
    const std::string path = m_context.inProgramFolder(vehicleFile);
    if (m_context.files.fileExists(path)) {
        KeywordTree tree;
        m_context.report("loading the vehicle properties", NactiTridy(m_context.texts, path, tree));
        wizard.loadProperties(tree);
        wizard.NadeklarujPole();
    }
    wizard.loadBaseClasses();
}

void Application::applyLanguage(const std::string& path)
{
    std::vector<QWidget*> windows = {&m_main};
    for (const auto& [name, dialog] : m_windows) {
        if (dialog)
            windows.push_back(dialog);
    }
    ApplyLanguage(m_context, path, windows);
}

QWidget* Application::window(std::string_view name)
{
    if (fromQt(m_main.objectName()) == name)
        return &m_main;
    if (const auto known = m_windows.find(name); known != m_windows.end() && known->second)
        return known->second;
    QDialog* made = make(name);
    if (!made)
        return nullptr;
    m_windows[std::string(name)] = made;
    // Without a chosen language the designer's captions stand.
    if (!m_context.state.Settings.LanguageFile.empty())
        showCaptions(*made, m_context);
    return made;
}

/// Makes a window that does not exist yet, as a child of the main window.
QDialog* Application::make(std::string_view name)
{
    if (name == "frmrejstrik2")
        return new frmrejstrik2(m_context, m_keywords, &m_main);
    if (name == "Form1")
        return new ClassWizard(weaponWizard, m_context, m_wizards.WeaponClasses, &m_main);
    if (name == "Form2")
        return new Form2(&m_main);
    if (name == "Form3")
        return new ClassWizard(ammoWizard, m_context, m_wizards.AmmoClasses, &m_main);
    if (name == "Form4")
        return new Form4(m_context, m_strings, &m_main);
    if (name == "Form5")
        return new Form5(
            m_context, [this] { return chooseFolder(); }, &m_main);
    if (name == "Form6")
        return new Form6(m_context, &m_main);
    if (name == "Form7")
        return new Form7(
            m_context, [this](const std::string& path) { applyLanguage(path); }, &m_main);
    if (name == "Form8")
        return new Form8(&m_main);
    if (name == "Form9")
        return new Form9(m_context, &m_main);
    if (name == "frmfaceaddon")
        return new frmfaceaddon(m_context, m_wizards.FaceEntries, &m_main);
    if (name == "frmvehikl")
        return new frmvehikl(m_context, m_wizards.VehicleProperties, &m_main);
    return nullptr;
}

template <class Window>
Window& Application::windowAs(std::string_view name)
{
    return *static_cast<Window*>(window(name));
}

void Application::showModal(std::string_view name)
{
    runModal(windowAs<QDialog>(name));
}

/// Shows a window until it is closed. A click that was waiting while it closed arrives before its loop has ended, and
/// does nothing.
void Application::runModal(QDialog& dialog)
{
    if (!m_modal.insert(&dialog).second)
        return;
    dialog.exec();
    m_modal.erase(&dialog);
}

void Application::showBeside(std::string_view name)
{
    auto& dialog = windowAs<QDialog>(name);
    dialog.show();
    dialog.raise();
    dialog.activateWindow();
}

std::string Application::chooseFolder()
{
    auto& chooser = windowAs<Form6>("Form6");
    runModal(chooser);
    return chooser.FolderPath;
}

/// A file that could not be read keeps what it holds, unless the author has set something since.
void Application::saveSettings()
{
    const EditorSettings& settings = m_context.state.Settings;
    if (m_insteadOfUnread != settings)
        m_context.report("writing the settings",
                         SaveSettings(m_context.files, m_context.texts.codePage(), settingsPath(), settings));
}

void Application::UnloadAllWindows()
{
    for (const auto& [name, dialog] : m_windows) {
        if (dialog)
            dialog->hide();
    }
    m_main.close();
    QCoreApplication::exit(0);
}

} // namespace kitwright
