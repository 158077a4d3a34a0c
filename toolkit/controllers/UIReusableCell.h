// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <string>

#include "toolkit/view/OutletOwner.h"
#include "toolkit/view/UIView.h"

namespace kindora {

/// A part of a table or a collection: its views and how it looks when pressed. Reused for other
/// data of its kind.
class UIReusableCell : public QObject, public OutletOwner {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("cells come from tables and collections")

 public:
  UIReusableCell();

  [[nodiscard]] const std::string& reuseIdentifier() const { return reuseIdentifier_; }
  void setReuseIdentifier(std::string_view identifier) { reuseIdentifier_ = identifier; }
  [[nodiscard]] UIView& contentView() { return *contentView_; }
  [[nodiscard]] std::shared_ptr<UIView> outlet(std::string_view name) override;

  /// Called once, when the outlets have been connected.
  virtual void awakeFromNib() {}
  Q_INVOKABLE virtual void setHighlighted(bool highlighted, bool animated);
  [[nodiscard]] bool isHighlighted() const { return highlighted_; }

 signals:
  void lookChanged();

 private:
  std::string reuseIdentifier_;
  std::shared_ptr<UIView> contentView_ = std::make_shared<UIView>();
  bool highlighted_ = false;
};

}  // namespace kindora
