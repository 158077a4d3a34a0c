// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/qt/QtPhotoService.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>
#include <utility>

#include "platform/qt/CameraProbe.h"
#include "platform/qt/PhotoFolder.h"
#include "platform/qt/PictureDecoder.h"

namespace kindora {

QtPhotoService::QtPhotoService(std::shared_ptr<DispatchQueue> replies)
    : replies_(std::move(replies)) {}

// The work runs on a reader thread, the answer with its result on the queue of replies.
template <typename Work, typename Answer>
void QtPhotoService::inBackground(int priority, Work work, Answer answer) {
  if (!readers_) {
    readers_ = std::make_unique<QThreadPool>();
    readers_->setMaxThreadCount(2);  // the rest of the phone wants to live too
    // Readers end with the application: what waits is dropped, what runs is waited for.
    QObject::connect(QCoreApplication::instance(), &QObject::destroyed, &lifetime_,
                     [this] { readers_.reset(); });
  }
  const auto job = [work = std::move(work), answer = std::move(answer), replies = replies_] {
    replies->async([answer, result = std::make_shared<decltype(work())>(work())] {
      answer(std::move(*result));
    });
  };
  readers_->start(job, priority);
}

void QtPhotoService::listPhotos(Reply<std::vector<PhotoFile>> reply) {
  const QString folder = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
  inBackground(
      0, [folder] { return photosBelow(folder); }, std::move(reply));
}

void QtPhotoService::listFolder(const std::string& path, Reply<std::vector<PhotoFile>> reply) {
  const QString folder = path.empty() ? QDir::homePath() : QString::fromStdString(path);
  inBackground(
      0, [folder] { return foldersAndPhotosIn(folder); }, std::move(reply));
}

void QtPhotoService::readPhoto(const std::string& path, int longestSide, Reply<UIImageRef> reply) {
  // A large picture is waited for; thumbnails are not.
  inBackground(
      longestSide,
      [file = QString::fromStdString(path), longestSide] {
        return decodePicture(file, longestSide);
      },
      [reply = std::move(reply)](std::optional<Raster> raster) {
        reply(raster ? UIImage::imageWithRaster(std::move(*raster)) : nullptr);
      });
}

void QtPhotoService::choosePhoto(Reply<PhotoChoice> reply) {
  if (!portal_) portal_ = std::make_unique<FileChooserPortal>();
  portal_->choose([replies = replies_, reply = std::move(reply)](const PhotoChoice& choice) {
    replies->async([reply, choice] { reply(choice); });
  });
}

void QtPhotoService::abandonChoice() {
  if (portal_) portal_->abandon();
}

bool QtPhotoService::supportsCamera() { return cameraPartsAreInstalled(); }

}  // namespace kindora
