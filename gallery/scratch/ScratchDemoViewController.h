// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <memory>

#include "effects/scratch/JxScratchImageView.h"
#include "gallery/controls/SliderSetting.h"
#include "toolkit/controllers/UIViewController.h"

namespace kindora {

/// A picture under a cover that is scratched off, with the grid in which the scratch view counts
/// how much is gone.
class ScratchDemoViewController : public kindora::UIViewController,
                                  public JxScratchImageViewDelegate {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("controllers come from the storyboard")
  Q_PROPERTY(kindora::SliderSetting* brushRadius READ brushRadius CONSTANT)
  Q_PROPERTY(bool gridShown READ isGridShown WRITE setGridShown NOTIFY gridShownChanged)
  Q_PROPERTY(double progress READ progress NOTIFY gridChanged)
  Q_PROPERTY(QString progressText READ progressText NOTIFY gridChanged)
  Q_PROPERTY(int columns READ columns NOTIFY gridChanged)
  Q_PROPERTY(int rows READ rows NOTIFY gridChanged)
  Q_PROPERTY(QByteArray marks READ marks NOTIFY gridChanged)

 public:
  std::weak_ptr<UIImageView> imageView;
  std::weak_ptr<JxScratchImageView> scratchImageView;

  ScratchDemoViewController();

  /// The storyboard's work: builds the views and connects the outlets.
  void connectOutlets();
  void viewDidLoad() override;

  /// In pixels of the cover. A new radius starts anew.
  [[nodiscard]] SliderSetting* brushRadius() { return &brushRadius_; }
  [[nodiscard]] bool isGridShown() const { return gridShown_; }
  void setGridShown(bool shown);
  /// The fraction of cells that are marked, 0 to 1.
  [[nodiscard]] double progress() const;
  [[nodiscard]] QString progressText() const;
  [[nodiscard]] int columns() const;
  [[nodiscard]] int rows() const;
  /// A byte a cell, 1 when it is marked, line by line from the top left.
  [[nodiscard]] QByteArray marks() const;

  /// Puts a whole cover back.
  Q_INVOKABLE void startAnew();

  void jxScratchImageView(JxScratchImageView& view, double didChangeMaskingProgress) override;

 signals:
  void gridShownChanged();
  void gridChanged();
  void startedAnew();

 private:
  SliderSetting brushRadius_;
  bool gridShown_ = true;
};

}  // namespace kindora
