// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "wizards/class_record.h"

namespace kitwright {

std::vector<bool> usedProperties(const std::vector<PropertySetting>& settings)
{
    std::vector<bool> used;
    used.reserve(settings.size());
    for (const PropertySetting& setting : settings)
        used.push_back(setting.Used);
    return used;
}

} // namespace kitwright
