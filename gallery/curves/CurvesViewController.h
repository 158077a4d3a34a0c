// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QList>
#include <QPointF>
#include <QStringList>
#include <memory>
#include <vector>

#include "effects/keyframes/CAAnimationDelegate.h"
#include "gallery/controls/SliderSetting.h"
#include "gallery/curves/CurveSettings.h"
#include "toolkit/controllers/UIViewController.h"

namespace kindora {

/// Springs and tweens: their curve for the present settings, and a ball that moves by it.
class CurvesViewController : public kindora::UIViewController, public CAAnimationDelegate {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("controllers come from the storyboard")
  Q_PROPERTY(QStringList kindNames READ kindNames CONSTANT)
  Q_PROPERTY(int kind READ kind WRITE setKind NOTIFY curveChanged)
  Q_PROPERTY(bool spring READ isSpring NOTIFY curveChanged)
  Q_PROPERTY(QStringList timingNames READ timingNames CONSTANT)
  Q_PROPERTY(int timing READ timing WRITE setTiming NOTIFY curveChanged)
  Q_PROPERTY(
      bool allowsOverdamping READ allowsOverdamping WRITE setAllowsOverdamping NOTIFY curveChanged)
  Q_PROPERTY(kindora::SliderSetting* duration READ duration CONSTANT)
  Q_PROPERTY(kindora::SliderSetting* damping READ damping CONSTANT)
  Q_PROPERTY(kindora::SliderSetting* mass READ mass CONSTANT)
  Q_PROPERTY(kindora::SliderSetting* stiffness READ stiffness CONSTANT)
  Q_PROPERTY(kindora::SliderSetting* velocity READ velocity CONSTANT)
  Q_PROPERTY(QList<QPointF> points READ points NOTIFY curveChanged)
  Q_PROPERTY(double lowest READ lowest NOTIFY curveChanged)
  Q_PROPERTY(double highest READ highest NOTIFY curveChanged)
  Q_PROPERTY(QString framesText READ framesText NOTIFY curveChanged)
  Q_PROPERTY(QString character READ character NOTIFY curveChanged)
  Q_PROPERTY(bool playing READ isPlaying NOTIFY playingChanged)

 public:
  /// The ball moves inside the track, from where 0 lies between lowest and highest.
  std::weak_ptr<UIView> trackView;
  std::weak_ptr<UIView> ballView;

  CurvesViewController();

  /// The storyboard's work: builds the views and connects the outlets.
  void connectOutlets();
  void viewDidDisappear(bool animated) override;

  [[nodiscard]] static QStringList kindNames();
  [[nodiscard]] int kind() const { return static_cast<int>(settings_.kind); }
  void setKind(int kind);
  [[nodiscard]] bool isSpring() const { return settings_.kind == CurveKind::spring; }
  [[nodiscard]] static QStringList timingNames();
  [[nodiscard]] int timing() const { return static_cast<int>(settings_.timing); }
  void setTiming(int timing);
  [[nodiscard]] bool allowsOverdamping() const { return settings_.allowsOverdamping; }
  void setAllowsOverdamping(bool allows);
  [[nodiscard]] SliderSetting* duration() { return &duration_; }
  [[nodiscard]] SliderSetting* damping() { return &damping_; }
  [[nodiscard]] SliderSetting* mass() { return &mass_; }
  [[nodiscard]] SliderSetting* stiffness() { return &stiffness_; }
  [[nodiscard]] SliderSetting* velocity() { return &velocity_; }

  /// One for each frame: the fraction of the duration at which it shows, 0 to 1, and its value.
  [[nodiscard]] QList<QPointF> points() const;
  /// Of all values, 0 and 1 included.
  [[nodiscard]] double lowest() const { return lowest_; }
  [[nodiscard]] double highest() const { return highest_; }
  [[nodiscard]] QString framesText() const;
  [[nodiscard]] QString character() const;

  [[nodiscard]] bool isPlaying() const { return playing_; }
  /// Moves the ball once, from the beginning. It stays where it has come to until a setting
  /// changes.
  Q_INVOKABLE void play();
  void animationDidStop(CAKeyframeAnimation& animation, bool finished) override;

 signals:
  void curveChanged();
  void playingChanged();

 private:
  void apply(const CurveSettings& settings);
  void traceCurve();
  void readSliders();
  void putBallBack();
  void setPlaying(bool playing);

  SliderSetting duration_;
  SliderSetting damping_;
  SliderSetting mass_;
  SliderSetting stiffness_;
  SliderSetting velocity_;
  CurveSettings settings_;
  std::vector<double> frames_;
  double lowest_ = 0;
  double highest_ = 1;
  bool playing_ = false;
};

}  // namespace kindora
