// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>
#include <QThreadPool>
#include <memory>

#include "platform/qt/FileChooserPortal.h"
#include "platform/services/DispatchQueue.h"
#include "platform/services/PhotoService.h"

namespace kindora {

/// The user's pictures on disk, read on threads of their own, which start with the first request.
class QtPhotoService final : public PhotoService {
 public:
  /// Replies come on that queue.
  explicit QtPhotoService(std::shared_ptr<DispatchQueue> replies);

  void listPhotos(Reply<std::vector<PhotoFile>> reply) override;
  void listFolder(const std::string& path, Reply<std::vector<PhotoFile>> reply) override;
  void readPhoto(const std::string& path, int longestSide, Reply<UIImageRef> reply) override;
  void choosePhoto(Reply<PhotoChoice> reply) override;
  void abandonChoice() override;
  [[nodiscard]] bool supportsCamera() override;

 private:
  template <typename Work, typename Answer>
  void inBackground(int priority, Work work, Answer answer);

  std::shared_ptr<DispatchQueue> replies_;
  std::unique_ptr<FileChooserPortal> portal_;
  std::unique_ptr<QThreadPool> readers_;
  QObject lifetime_;  // ends connections with the service
};

}  // namespace kindora
