// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "photos/PhotoList.h"
#include "photos/PhotoPageController.h"

namespace kindora {

/// The user's pictures: in the system's file chooser where there is one, else as a grid of what the
/// folder of pictures holds.
class PhotoLibraryController : public kindora::PhotoPageController {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("pages are made by the image picker")
  Q_PROPERTY(kindora::PhotoList* photos READ photos CONSTANT)
  Q_PROPERTY(bool showsGrid READ showsGrid NOTIFY stageChanged)
  Q_PROPERTY(bool listing READ isListing NOTIFY stageChanged)
  Q_PROPERTY(bool choosesElsewhere READ choosesElsewhere NOTIFY stageChanged)

 public:
  [[nodiscard]] PhotoList* photos() { return &photos_; }
  /// The pictures were listed, though there may be none.
  [[nodiscard]] bool showsGrid() const { return stage_ == Stage::grid; }
  /// They are looked for.
  [[nodiscard]] bool isListing() const { return stage_ == Stage::listing; }
  /// The system's file chooser may be open.
  [[nodiscard]] bool choosesElsewhere() const { return stage_ == Stage::chooser; }

  void viewDidLoad() override;
  void viewWillDisappear(bool animated) override;
  [[nodiscard]] QUrl page() const override;

  /// The user chose a picture of the grid.
  Q_INVOKABLE void choose(int row);
  /// Looks for a picture in other folders.
  Q_INVOKABLE void browse();

 signals:
  void stageChanged();

 private:
  enum class Stage { chooser, chosen, listing, grid };
  void setStage(Stage stage);
  void chosenElsewhere(const PhotoChoice& choice);

  PhotoList photos_;
  Stage stage_ = Stage::chooser;
};

}  // namespace kindora
