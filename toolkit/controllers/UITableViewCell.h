// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "toolkit/controllers/UIReusableCell.h"
#include "toolkit/view/UILabel.h"

namespace kindora {

enum class UITableViewCellAccessoryType { none, checkmark };
enum class UITableViewCellSelectionStyle { none, standard };

/// A row of a table.
class UITableViewCell : public kindora::UIReusableCell {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("cells come from the table")
  Q_PROPERTY(bool showsSelection READ showsSelection NOTIFY lookChanged)
  Q_PROPERTY(bool hasCheckmark READ hasCheckmark NOTIFY lookChanged)

 public:
  /// What stands at the row's end.
  [[nodiscard]] UITableViewCellAccessoryType accessoryType() const { return accessoryType_; }
  void setAccessoryType(UITableViewCellAccessoryType type);
  /// Whether a press shows on the row.
  [[nodiscard]] UITableViewCellSelectionStyle selectionStyle() const { return selectionStyle_; }
  void setSelectionStyle(UITableViewCellSelectionStyle style);

  [[nodiscard]] bool showsSelection() const;
  [[nodiscard]] bool hasCheckmark() const;

 private:
  UITableViewCellAccessoryType accessoryType_ = UITableViewCellAccessoryType::none;
  UITableViewCellSelectionStyle selectionStyle_ = UITableViewCellSelectionStyle::standard;
};

/// The line above a section.
class UITableViewHeaderFooterView : public QObject, public OutletOwner {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("headers come from the table")

 public:
  UITableViewHeaderFooterView();
  std::weak_ptr<UILabel> textLabel;
  [[nodiscard]] UIViewRef outlet(std::string_view name) override;

 private:
  UIViewRef contentView_ = std::make_shared<UIView>();
};

}  // namespace kindora
