// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <map>
#include <string>

#include "platform/services/ResourceBundle.h"

namespace kindora {

/// The drawings among the app's Qt resources. A drawing's size in points is half the size of its
/// view box, at a scale of 2. Looking one up reads no more of it than that size. Main thread only.
class QtResourceBundle final : public ResourceBundle {
 public:
  /// Looks for "<name>.svg" in the folder.
  explicit QtResourceBundle(QString folder = QStringLiteral(":/kindora/images"));

  [[nodiscard]] UIImageRef imageNamed(std::string_view name) override;

 private:
  QString folder_;
  std::map<std::string, UIImageRef, std::less<>> images_;
};

}  // namespace kindora
