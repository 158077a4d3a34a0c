// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>
#include <QVariantMap>
#include <functional>

#include "platform/services/PhotoService.h"

namespace kindora {

/// The desktop's own file chooser, as the desktop portal on the session bus offers it. One question
/// at a time: a new one takes the earlier back.
class FileChooserPortal : public QObject {
  Q_OBJECT

 public:
  using Reply = std::function<void(PhotoChoice)>;

  ~FileChooserPortal() override;

  /// Asks for a JPEG or PNG file. The reply comes later, from the event loop.
  void choose(Reply reply);
  /// Closes the chooser; the reply never comes.
  void abandon();

 private slots:
  void answered(uint response, const QVariantMap& results);

 private:
  void forget();
  void finish(const PhotoChoice& choice);

  Reply reply_;
  QString request_;  // object path of the question that is open
  int asked_ = 0;
};

}  // namespace kindora
