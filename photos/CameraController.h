// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QTemporaryDir>
#include <memory>

#include "photos/PhotoPageController.h"

namespace kindora {

/// The camera, or a calm word that there is none and the way to the user's pictures.
class CameraController : public kindora::PhotoPageController {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("pages are made by the image picker")
  Q_PROPERTY(bool supported READ isSupported CONSTANT)
  Q_PROPERTY(bool running READ isRunning NOTIFY runningChanged)

 public:
  CameraController();
  ~CameraController() override;

  /// The parts are there that show a camera.
  [[nodiscard]] bool isSupported() const { return supported_; }
  /// The page is seen, so that a camera may be on.
  [[nodiscard]] bool isRunning() const { return running_; }

  void viewDidLoad() override;
  void viewDidAppear(bool animated) override;
  void viewWillDisappear(bool animated) override;
  [[nodiscard]] QUrl page() const override;

  /// Where the camera is to put its next picture; empty when there is no place for it.
  Q_INVOKABLE QString pictureFile();
  /// The camera has written its picture there; the file goes with the page or with the next one.
  Q_INVOKABLE void photoTaken(const QString& file);
  Q_INVOKABLE void chooseExisting();

 signals:
  void runningChanged();

 private:
  void setRunning(bool running);

  bool supported_ = false;
  bool running_ = false;
  std::unique_ptr<QTemporaryDir> folder_;
};

}  // namespace kindora
