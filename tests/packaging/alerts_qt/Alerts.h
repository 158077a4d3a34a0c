// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// Alerts made in C++.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "alerts/legacy/QavAlertView.h"
#include "alerts/qt/QavAlertController.h"

/// To be presented: asks for a name, with a picture.
kindora::QavAlertControllerRef askForName(std::function<void(const std::string& name)> answer);

/// Says something and tells which of two buttons was chosen.
std::shared_ptr<kindora::QavAlertView> say(const std::string& what,
                                           std::function<void(int buttonIndex)> answer);
