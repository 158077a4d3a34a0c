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
  Q_PROPERTY(bool settled READ isSettled NOTIFY lookChanged)

 public:
  void prepareForReuse() override;
  /// False from its reuse until it stands in its row: what changes then shows at once.
  [[nodiscard]] bool isSettled() const { return settled_; }
  void settle();

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
  bool settled_ = false;
};

/// The line above a section.
class UITableViewHeaderFooterView : public kindora::UIReusableCell {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("headers come from the table")

 public:
  UITableViewHeaderFooterView() { connectOutlet(textLabel, "textLabel", contentView()); }
  std::weak_ptr<UILabel> textLabel;
};

}  // namespace kindora
