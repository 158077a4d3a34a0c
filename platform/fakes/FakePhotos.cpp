// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/fakes/FakePhotos.h"

#include "platform/FatalError.h"

namespace kindora {

void FakePhotos::listPhotos(Reply<std::vector<PhotoFile>> reply) {
  replies_->async([reply = std::move(reply), photos = library_] { reply(photos); });
}

void FakePhotos::listFolder(const std::string& path, Reply<std::vector<PhotoFile>> reply) {
  replies_->async([reply = std::move(reply), files = folders[path]] { reply(files); });
}

void FakePhotos::readPhoto(const std::string& path, int longestSide, Reply<UIImageRef> reply) {
  read.emplace_back(path, longestSide);
  replies_->async([reply = std::move(reply), image = images_[path]] { reply(image); });
}

void FakePhotos::choosePhoto(Reply<PhotoChoice> reply) {
  if (fileChooser) {
    choice_ = std::move(reply);
  } else {
    replies_->async([reply = std::move(reply)] { reply({.available = false}); });
  }
}

void FakePhotos::abandonChoice() { choice_ = {}; }

void FakePhotos::addPhoto(const std::string& path, UIImageRef image) {
  library_.push_back({.path = path, .name = path.substr(path.rfind('/') + 1)});
  images_[path] = std::move(image);
}

void FakePhotos::answerChoice(const std::string& path) {
  if (!choice_) fatalError("the file chooser is not open");
  std::exchange(choice_, {})({.available = true, .path = path});
}

}  // namespace kindora
