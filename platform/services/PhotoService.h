// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/UIImage.h"

namespace kindora {

/// Something in a folder of the user's.
struct PhotoFile {
  std::string path;
  std::string name;  ///< the last part of the path
  bool isFolder = false;
  friend bool operator==(const PhotoFile&, const PhotoFile&) = default;
};

/// What came of asking the system's file chooser.
struct PhotoChoice {
  bool available = false;  ///< false: this system has no file chooser
  std::string path;        ///< empty: the user chose none
};

/// The user's pictures and camera. Main thread only; every reply comes on the main queue, later
/// than the call.
class PhotoService {
 public:
  template <typename Result>
  using Reply = std::function<void(Result)>;

  virtual ~PhotoService() = default;

  /// The JPEG and PNG files (by content) in the user's folder of pictures and the folders in it,
  /// newest first. Hidden ones are left out.
  virtual void listPhotos(Reply<std::vector<PhotoFile>> reply) = 0;
  /// What a folder holds: folders by name, then pictures newest first. Hidden files are left out.
  /// An empty path is the user's home; a folder that cannot be read is empty.
  virtual void listFolder(const std::string& path, Reply<std::vector<PhotoFile>> reply) = 0;
  /// Reads a JPEG or PNG file, upright, at most that many pixels on its longer side. Null when the
  /// file is anything else or is damaged.
  virtual void readPhoto(const std::string& path, int longestSide, Reply<UIImageRef> reply) = 0;
  /// Asks the system's file chooser, if there is one, for a picture.
  virtual void choosePhoto(Reply<PhotoChoice> reply) = 0;
  /// Takes the system's file chooser back; its reply, if any, is dropped.
  virtual void abandonChoice() = 0;
  /// Whether the parts are there that a camera needs. It says nothing of a camera itself.
  [[nodiscard]] virtual bool supportsCamera() = 0;
};

}  // namespace kindora
