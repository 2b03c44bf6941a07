// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/sha1.h"

#include <QCryptographicHash>

namespace kitwright {

/// The desktop library's SHA-1.
class QtSha1 final : public Sha1 {
public:
    void start() override { m_hash.reset(); }

    void add(std::string_view bytes) override
    {
        m_hash.addData({bytes.data(), static_cast<qsizetype>(bytes.size())});
    }

    std::string result() override { return m_hash.result().toStdString(); }

private:
    QCryptographicHash m_hash{QCryptographicHash::Sha1};
};

} // namespace kitwright
