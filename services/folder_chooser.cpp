// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "services/folder_chooser.h"

#include "platform/qt_text.h"
#include "platform/shown_text.h"
#include "services/paths.h"
#include "ui_folder_chooser.h"

#include <QDir>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QStorageInfo>
#include <QStyledItemDelegate>

namespace kitwright {

namespace {

constexpr int pathRole = Qt::UserRole;
constexpr int levelRole = Qt::UserRole + 1;

/// Draws an entry as far to the right as its level says.
class LevelDelegate final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        QStyleOptionViewItem moved = option;
        moved.rect.setLeft(moved.rect.left() + indent(option, index));
        QStyledItemDelegate::paint(painter, moved, index);
    }

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        return QStyledItemDelegate::sizeHint(option, index) + QSize(indent(option, index), 0);
    }

private:
    static int indent(const QStyleOptionViewItem& option, const QModelIndex& index)
    {
        return index.data(levelRole).toInt() * option.fontMetrics.height();
    }
};

std::string inside(const std::string& folder, const std::string& name)
{
    return folder.ends_with('/') ? folder + name : folder + '/' + name;
}

/// The root of an absolute path, then each folder below it down to the path itself.
std::vector<std::string> chainTo(const std::string& path)
{
    std::vector<std::string> chain;
    for (std::size_t end = path.find('/'); end != std::string::npos; end = path.find('/', end + 1))
        chain.push_back(path.substr(0, chain.empty() ? end + 1 : end));
    if (chain.empty() || chain.front() != path)
        chain.push_back(path);
    return chain;
}

/// True for a disk, a stick or a network share that holds an author's files.
bool isDrive(const QStorageInfo& volume)
{
    const QByteArray device = volume.device();
    const bool onNetwork = device.startsWith("//") || device.contains(":/");
    const bool onDisk = device.startsWith("/dev/") && !device.startsWith("/dev/loop");
    return volume.isReady() && !volume.isRoot() && (onDisk || onNetwork || !volume.rootPath().startsWith('/'))
        && QFileInfo(volume.rootPath()).isDir();
}

} // namespace

Form6::Form6(Context& context, QWidget* parent)
    : QDialog(parent),
      m_context(context),
      m_ui(std::make_unique<Ui::Form6>())
{
    m_ui->setupUi(this);
    m_ui->Dir1->setItemDelegate(new LevelDelegate(m_ui->Dir1));
    m_ui->Dir1->installEventFilter(this);

    const auto openDrive = [this](int index) {
        const QVariant folder = m_ui->Drive1->itemData(index);
        if (folder.isValid())
            openFolder(fromQt(folder.toString()));
    };
    // The drive that the box shows already can be chosen again, as the way back to its root.
    connect(m_ui->Drive1, &QComboBox::currentIndexChanged, this, openDrive);
    connect(m_ui->Drive1, &QComboBox::activated, this, openDrive);
    connect(m_ui->Dir1, &QListWidget::itemClicked, this, &Form6::pick);
    connect(m_ui->Dir1, &QListWidget::currentRowChanged, this, &Form6::pick);
    connect(m_ui->Dir1, &QListWidget::itemDoubleClicked, this, &Form6::openEntry);
    connect(m_ui->Command1, &QPushButton::clicked, this, &QDialog::accept);
}

Form6::~Form6() = default;

void Form6::reject()
{
    FolderPath.clear();
    m_openFolder.clear();
    QDialog::reject();
}

void Form6::showEvent(QShowEvent* event)
{
    if (!event->spontaneous()) {
        listDrives();
        if (m_openFolder.empty())
            openFirstFolder();
        else
            openFolder(m_openFolder);
    }
    QDialog::showEvent(event);
}

bool Form6::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_ui->Dir1 && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            openEntry(m_ui->Dir1->currentItem());
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

void Form6::listDrives()
{
    const QSignalBlocker quiet(m_ui->Drive1);
    const QVariant shown = m_ui->Drive1->currentData();
    m_ui->Drive1->clear();
    const auto add = [this](const QString& path, QStyle::StandardPixmap icon) {
        if (m_ui->Drive1->findData(path) < 0)
            m_ui->Drive1->addItem(style()->standardIcon(icon), QDir::toNativeSeparators(path), path);
    };
    add(QDir::rootPath(), QStyle::SP_DriveHDIcon);
    add(QDir::homePath(), QStyle::SP_DirHomeIcon);
    const QList<QStorageInfo> volumes = QStorageInfo::mountedVolumes();
    for (const QStorageInfo& volume : volumes) {
        if (isDrive(volume))
            add(volume.rootPath(), QStyle::SP_DriveHDIcon);
    }
    m_ui->Drive1->setCurrentIndex(std::max(0, m_ui->Drive1->findData(shown)));
}

void Form6::openFirstFolder()
{
    const QString packed = QDir::cleanPath(toQt(m_context.state.Settings.PboFolder));
    if (QDir::isAbsolutePath(packed) && openFolder(fromQt(packed)))
        return;
    if (!openFolder(fromQt(QDir::homePath())))
        openFolder(fromQt(QDir::rootPath()));
}

bool Form6::openFolder(const std::string& folder)
{
    const Outcome<std::vector<std::string>> subfolders = m_context.files.listFolders(folder);
    if (!subfolders) {
        m_context.report("listing folders", subfolders.reason());
        return false;
    }
    m_openFolder = folder;
    showFolder(*subfolders);
    return true;
}

void Form6::showFolder(const std::vector<std::string>& subfolders)
{
    const QScopedValueRollback filling(m_filling, true);
    m_ui->Dir1->clear();
    int level = 0;
    QListWidgetItem* opened = nullptr;
    for (const std::string& path : chainTo(m_openFolder)) {
        const std::string name = level == 0 ? path : FileNameOf(path);
        opened = addFolder(toQt(name), path, level++, true);
    }
    QFont font = m_ui->Dir1->font();
    font.setBold(true);
    opened->setFont(font);
    for (const std::string& name : subfolders)
        addFolder(toQt(name), inside(m_openFolder, name), level, false);
    m_ui->Dir1->setCurrentItem(opened);
    m_ui->Dir1->scrollToItem(opened);
}

QListWidgetItem* Form6::addFolder(const QString& name, const std::string& path, int level, bool isOpen)
{
    auto* entry = new QListWidgetItem(style()->standardIcon(isOpen ? QStyle::SP_DirOpenIcon : QStyle::SP_DirIcon),
                                      name, m_ui->Dir1);
    entry->setData(pathRole, toQt(path));
    entry->setData(levelRole, level);
    entry->setToolTip(shownText(fromQt(QDir::toNativeSeparators(toQt(path)))));
    return entry;
}

void Form6::openEntry(const QListWidgetItem* entry)
{
    if (entry)
        openFolder(fromQt(entry->data(pathRole).toString()));
}

void Form6::pick()
{
    if (!m_filling)
        FolderPath = m_openFolder;
}

} // namespace kitwright
