// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>

namespace kindora {

/// A part of a table or a collection that comes back for other data of its kind.
class ReusableCell {
 public:
  ReusableCell() = default;
  virtual ~ReusableCell() = default;
  ReusableCell(const ReusableCell&) = delete;
  ReusableCell& operator=(const ReusableCell&) = delete;

  /// The name under which it was registered.
  [[nodiscard]] const std::string& reuseIdentifier() const { return reuseIdentifier_; }
  void setReuseIdentifier(std::string_view identifier) { reuseIdentifier_ = identifier; }

  /// Called once, when the outlets have been connected.
  virtual void awakeFromNib() {}
  /// It is no longer shown. Overriders call this one.
  virtual void prepareForReuse() {
    if (highlighted_) setHighlighted(false, false);
  }

  [[nodiscard]] bool isHighlighted() const { return highlighted_; }
  /// Has it look pressed, or no longer. Overriders call this one.
  virtual void setHighlighted(bool highlighted, bool /*animated*/) { highlighted_ = highlighted; }

 private:
  std::string reuseIdentifier_;
  bool highlighted_ = false;
};

}  // namespace kindora
