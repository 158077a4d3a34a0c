// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <string>

#include "platform/qt/toolkit/OutletOwner.h"
#include "platform/view/UILabel.h"

namespace kindora {

/// A row of a table: its views and how it looks when pressed. Reused for other rows of its kind.
class UITableViewCell : public QObject, public OutletOwner {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("cells come from the table")

 public:
  UITableViewCell();

  [[nodiscard]] const std::string& reuseIdentifier() const { return reuseIdentifier_; }
  void setReuseIdentifier(std::string_view identifier) { reuseIdentifier_ = identifier; }
  [[nodiscard]] UIView& contentView() { return *contentView_; }
  [[nodiscard]] std::shared_ptr<UIView> outlet(std::string_view name) override;

  /// Called once, when the outlets have been connected.
  virtual void awakeFromNib() {}
  virtual void setHighlighted(bool highlighted, bool /*animated*/) { highlighted_ = highlighted; }
  [[nodiscard]] bool isHighlighted() const { return highlighted_; }

 private:
  std::string reuseIdentifier_;
  std::shared_ptr<UIView> contentView_ = std::make_shared<UIView>();
  bool highlighted_ = false;
};

/// The line above a section.
class UITableViewHeaderFooterView : public QObject, public OutletOwner {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("headers come from the table")

 public:
  UITableViewHeaderFooterView();
  std::weak_ptr<UILabel> textLabel;
  [[nodiscard]] std::shared_ptr<UIView> outlet(std::string_view name) override;

 private:
  std::shared_ptr<UIView> contentView_ = std::make_shared<UIView>();
};

}  // namespace kindora
