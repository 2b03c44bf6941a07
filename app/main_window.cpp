// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/main_window.h"

#include "app/browser_clicks.h"
#include "app/colouring.h"
#include "app/menu_keys.h"
#include "editor/brace_matcher.h"
#include "editor/find_bar.h"
#include "editor/line_number_margin.h"
#include "platform/qt_text.h"
#include "ui_main_window.h"

#include <QCloseEvent>
#include <QScopeGuard>
#include <QScreen>

#include <utility>

namespace kitwright {

namespace {

/// The inner size of the window that the controls are placed for in the designer.
constexpr double designedWidth = 1000;
constexpr double designedHeight = 640;

std::unique_ptr<Ui::fmrconfigedit> setUp(fmrconfigedit& window)
{
    auto ui = std::make_unique<Ui::fmrconfigedit>();
    ui->setupUi(&window);
    return ui;
}

} // namespace

fmrconfigedit::fmrconfigedit(Context& context, TableStore& strings, const KeywordTree& classes,
                             const KeywordTree& commands, const KeywordList& keywords)
    : m_context(context),
      m_classes(classes),
      m_commandTree(commands),
      m_keywords(keywords),
      m_ui(setUp(*this)),
      m_box(*m_ui->configedit, context.texts.codePage()),
      m_live(m_box, keywords, context.state.Settings),
      m_commands(
          context, strings, [this](const std::string& caption) { setWindowTitle(toQt(caption)); },
          [this](RichTextBox& editor, std::string text) { showOpened(editor, std::move(text)); })
{
    m_startUp.emplace(m_live);
    new BraceMatcher(*m_ui->configedit);
    new LineNumberMargin(*m_ui->configedit);
    new FindBar(*m_ui->configedit);
    new MenuKeys(*m_ui->menubar);
    for (QMenu* menu : findChildren<QMenu*>())
        menu->menuAction()->setObjectName(menu->objectName());
    m_ui->centralwidget->installEventFilter(this);
    connectDocumentCommands();
    connectWindows();
    connectBrowsers();
    m_ui->configedit->setFocus();
}

fmrconfigedit::~fmrconfigedit() = default;

void fmrconfigedit::connectDocumentCommands()
{
    const auto command = [this](QAbstractButton* button, QAction* action, auto handler) {
        connect(button, &QAbstractButton::clicked, this, handler);
        connect(action, &QAction::triggered, this, handler);
        // The button bears the caption of its menu entry, in any language that has one.
        connect(action, &QAction::changed, button, [button, action] {
            if (const QString caption = action->toolTip(); !caption.isEmpty()) {
                button->setToolTip(caption);
                button->setAccessibleName(caption);
            }
        });
    };
    command(m_ui->cmdnew, m_ui->mnufilenew, [this] { m_commands.newDocument(); });
    command(m_ui->cmdopen, m_ui->mnufileopen, [this] { m_commands.open(); });
    command(m_ui->cmdsave, m_ui->mnusave, [this] { m_commands.UlozAddon(); });
    command(m_ui->cmdsaveas, m_ui->mnusaveas, [this] { m_commands.saveAs(); });
    connect(m_ui->cmdrefresh, &QAbstractButton::clicked, this, [this] { Uprav2(); });
    connect(m_ui->Command2, &QPushButton::clicked, this, [this] { m_commands.makePbo(); });
    connect(m_ui->mnufilekonec, &QAction::triggered, this, [this] { Q_EMIT endWanted(); });
    connect(m_ui->Command1, &QPushButton::clicked, this, [this] { Q_EMIT endWanted(); });
}

void fmrconfigedit::connectWindows()
{
    const auto modal = [this](auto* sender, auto signal, std::string_view name) {
        connect(sender, signal, this, [this, name] { Q_EMIT modalWanted(name); });
    };
    const auto beside = [this](auto* sender, auto signal, std::string_view name) {
        connect(sender, signal, this, [this, name] { Q_EMIT besideWanted(name); });
    };
    const auto clicked = &QAbstractButton::clicked;
    const auto triggered = &QAction::triggered;
    modal(m_ui->cmdrejstrik, clicked, "frmrejstrik2");
    beside(m_ui->cmdstrings, clicked, "Form4");
    modal(m_ui->cmdsetup, clicked, "Form5");
    beside(m_ui->cmdhelp, clicked, "Form9");
    beside(m_ui->mnuwizardfaces, triggered, "frmfaceaddon");
    beside(m_ui->mnuwizardgun, triggered, "Form1");
    beside(m_ui->mnuammoadd, triggered, "Form3");
    beside(m_ui->mnuwizardvehikly, triggered, "frmvehikl");
    modal(m_ui->mnusetupedit, triggered, "Form5");
    modal(m_ui->mnijazyk, triggered, "Form7");
    modal(m_ui->mnuabout, triggered, "Form8");
}

void fmrconfigedit::connectBrowsers()
{
    connect(m_ui->classes, &BrowserTree::entryClicked, this, [this](std::size_t index) {
        classClicked(*this, m_classes.nodes()[index], m_context.state.Settings.DeclareFromRoot);
        m_ui->configedit->ensureCursorVisible();
    });
    connect(m_ui->commands, &BrowserTree::entryClicked, this, [this](std::size_t index) {
        commandClicked(*this, m_commandTree.nodes()[index]);
        m_ui->configedit->ensureCursorVisible();
    });
}

void fmrconfigedit::showTrees()
{
    const auto show = [](BrowserTree& browser, const KeywordTree& tree) {
        std::vector<BrowserEntry> entries;
        entries.reserve(tree.nodes().size());
        for (const TreeNode& node : tree.nodes())
            entries.push_back({node.text, node.parent, node.isHeading()});
        browser.showEntries(entries);
    };
    show(*m_ui->classes, m_classes);
    show(*m_ui->commands, m_commandTree);
}

void fmrconfigedit::showFitted()
{
    // The window manager's frame wants room, too, and is not known before the window is shown.
    constexpr QSize frame(8, 32);
    const QSize available = screen()->availableGeometry().size() - frame;
    constexpr double share = 0.75;
    resize(size().expandedTo((available * share)).boundedTo(available));
    show();
}

/// Runs a full pass over a text of so many bytes. Events may run before it begins.
void fmrconfigedit::fullPass(std::size_t length, const std::function<void()>& colour)
{
    const auto over = qScopeGuard([this] { Q_EMIT fullPassEnds(); });
    Q_EMIT fullPassBegins(length);
    const LiveColouring::Pause pause(m_live);
    colour();
}

void fmrconfigedit::Uprav2()
{
    if (m_context.state.Settings.KeywordColouringOff)
        return;
    if (m_changes > 0) {
        m_colouringDue = true;
        return;
    }
    fullPass(m_box.length(), [this] { colourBox(m_box, m_keywords, m_context.state.Settings); });
}

void fmrconfigedit::showOpened(RichTextBox& editor, std::string text)
{
    if (m_context.state.Settings.KeywordColouringOff) {
        editor.loadText(text);
        return;
    }
    fullPass(text.size(), [&] { loadColoured(editor, std::move(text), m_keywords, m_context.state.Settings); });
}

void fmrconfigedit::beginDocumentChange()
{
    if (m_changes++ == 0) {
        m_change.emplace(m_live);
        m_box.beginUndoStep();
    }
}

void fmrconfigedit::endDocumentChange()
{
    if (--m_changes > 0)
        return;
    const bool colouringDue = std::exchange(m_colouringDue, false);
    // What the colouring respells belongs to the change. Events may run while the colouring itself is announced, so
    // that it waits until no undo step is open.
    if (colouringDue)
        respellBox(m_box, m_keywords);
    m_box.endUndoStep();
    m_change.reset();
    if (colouringDue)
        Uprav2();
}

void fmrconfigedit::closeEvent(QCloseEvent* event)
{
    Q_EMIT closing();
    event->accept();
}

bool fmrconfigedit::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_ui->centralwidget && event->type() == QEvent::Resize)
        layOut();
    return QMainWindow::eventFilter(watched, event);
}

/// Proportional resize: every control keeps its share of the window.
void fmrconfigedit::layOut()
{
    const QWidget& area = *m_ui->centralwidget;
    const QWidgetList controls = area.findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
    if (!m_layout) {
        std::vector<Geometry> designed;
        for (const QWidget* control : controls) {
            const QRectF place = control->geometry();
            designed.push_back({place.left(), place.top(), place.width(), place.height()});
        }
        m_layout.emplace(designedWidth, designedHeight, std::move(designed));
    }
    if (isMinimized())
        return;
    const std::vector<Geometry> places = m_layout->at(area.width(), area.height());
    for (qsizetype i = 0; i < controls.size(); ++i) {
        const Geometry& place = places[static_cast<std::size_t>(i)];
        controls[i]->setGeometry(QRectF(place.left, place.top, place.width, place.height).toRect());
    }
}

} // namespace kitwright
