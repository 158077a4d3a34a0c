// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/services/DispatchQueue.h"
#include "platform/services/PhotoService.h"

namespace kindora {

/// Pictures that a test hands in. Without any the library is empty, and there is neither a file
/// chooser nor a camera.
class FakePhotos final : public PhotoService {
 public:
  /// Replies come on that queue.
  explicit FakePhotos(std::shared_ptr<DispatchQueue> replies) : replies_(std::move(replies)) {}

  void listPhotos(Reply<std::vector<PhotoFile>> reply) override;
  void listFolder(const std::string& path, Reply<std::vector<PhotoFile>> reply) override;
  void readPhoto(const std::string& path, int longestSide, Reply<UIImageRef> reply) override;
  void choosePhoto(Reply<PhotoChoice> reply) override;
  void abandonChoice() override;
  [[nodiscard]] bool supportsCamera() override { return camera; }

  /// Puts a picture at the end of the library; null is a file that cannot be read.
  void addPhoto(const std::string& path, UIImageRef image);
  /// The user's answer in the file chooser, which must be open.
  void answerChoice(const std::string& path);
  [[nodiscard]] bool isChoosing() const { return static_cast<bool>(choice_); }

  bool fileChooser = false;
  bool camera = false;
  std::map<std::string, std::vector<PhotoFile>> folders;
  /// Every picture that was asked for, with the longest side.
  std::vector<std::pair<std::string, int>> read;

 private:
  std::shared_ptr<DispatchQueue> replies_;
  std::vector<PhotoFile> library_;
  std::map<std::string, UIImageRef> images_;
  Reply<PhotoChoice> choice_;
};

}  // namespace kindora
