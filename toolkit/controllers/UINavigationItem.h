// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QString>
#include <functional>
#include <memory>
#include <vector>

namespace kindora {

/// A button in a bar: a text, or a picture with a word for those who hear it.
class UIBarButtonItem : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("owned by navigation items")
  Q_PROPERTY(QString title READ title CONSTANT)
  Q_PROPERTY(QString imageName READ imageName CONSTANT)
  Q_PROPERTY(bool enabled READ isEnabled WRITE setEnabled NOTIFY enabledChanged)

 public:
  using Action = std::function<void()>;
  UIBarButtonItem(const QString& title, const QString& imageName, Action action);

  /// The visible text, or the word for the picture.
  [[nodiscard]] const QString& title() const { return title_; }
  [[nodiscard]] const QString& imageName() const { return imageName_; }
  [[nodiscard]] bool isEnabled() const { return enabled_; }
  void setEnabled(bool enabled);
  Q_INVOKABLE void press();

 signals:
  void enabledChanged();

 private:
  QString title_;
  QString imageName_;
  Action action_;
  bool enabled_ = true;
};

using UIBarButtonItemRef = std::shared_ptr<UIBarButtonItem>;

/// What the navigation bar shows while a controller is on top.
class UINavigationItem : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("owned by controllers")
  Q_PROPERTY(QString title READ title NOTIFY changed)
  Q_PROPERTY(QString prompt READ prompt NOTIFY changed)
  Q_PROPERTY(bool hidesBackButton READ hidesBackButton NOTIFY changed)
  Q_PROPERTY(kindora::UIBarButtonItem* leftBarButtonItem READ left NOTIFY changed)
  Q_PROPERTY(kindora::UIBarButtonItem* rightBarButtonItem READ right NOTIFY changed)

 public:
  [[nodiscard]] const QString& title() const { return title_; }
  void setTitle(const QString& title);
  /// A line above the title; none when empty.
  [[nodiscard]] const QString& prompt() const { return prompt_; }
  void setPrompt(const QString& prompt);
  [[nodiscard]] bool hidesBackButton() const { return hidesBackButton_; }
  void setHidesBackButton(bool hides);
  [[nodiscard]] const UIBarButtonItemRef& leftBarButtonItem() const { return left_; }
  void setLeftBarButtonItem(const UIBarButtonItemRef& item);
  [[nodiscard]] const UIBarButtonItemRef& rightBarButtonItem() const { return right_; }
  void setRightBarButtonItem(const UIBarButtonItemRef& item);

 signals:
  void changed();

 private:
  [[nodiscard]] UIBarButtonItem* left() const { return left_.get(); }
  [[nodiscard]] UIBarButtonItem* right() const { return right_.get(); }
  template <typename Value>
  void assign(Value& field, const Value& value);

  QString title_;
  QString prompt_;
  bool hidesBackButton_ = false;
  UIBarButtonItemRef left_;
  UIBarButtonItemRef right_;
};

}  // namespace kindora
