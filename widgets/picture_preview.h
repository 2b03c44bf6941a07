// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QImage>
#include <QLabel>

#include <string_view>

namespace kitwright {

/// Shows a picture as large as there is room for, in its own proportions.
class PicturePreview final : public QLabel {
    Q_OBJECT

public:
    explicit PicturePreview(QWidget* parent = nullptr);

    /// Shows the JPG picture that a file's bytes hold. False when they hold none, or one too large to be a texture; the
    /// preview then stays as it was.
    bool showPicture(std::string_view bytes);

    /// Shows nothing.
    void clearPicture();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void fitPicture();

    QImage m_picture; ///< No larger than a screen needs it.
};

} // namespace kitwright
