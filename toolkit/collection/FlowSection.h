// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// One section of a flow layout: lines from left to right, one below another.
//
// A line takes as many items as fit at the least spacing, at least one. The width left over is
// spread evenly between them, or on both sides where no second item fits. The last line is spaced
// as if further items like its last one filled it. Lower items stand in the middle of their line.
#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "platform/Geometry.h"

namespace kindora {

/// What decides how the items of a section flow; lengths in points.
struct FlowMetrics {
  int itemCount = 0;
  double width = 0;  ///< of the whole section, insets included
  double interitemSpacing = 0;
  double lineSpacing = 0;
  UIEdgeInsets insets;
  /// The size that all items have; none where sizeOfItem is to be asked for each.
  std::optional<CGSize> uniformSize;
  std::function<CGSize(int item)> sizeOfItem;
};

class FlowSection final {
 public:
  using ItemVisitor = std::function<void(int item, const CGRect& frame)>;

  /// Top is where the section begins in the content, insets included. Items of one size cost
  /// nothing here, others are each asked for their size and leave a record a line.
  FlowSection(FlowMetrics metrics, double top);

  /// Where the section ends in the content, insets included.
  [[nodiscard]] double bottom() const { return bottom_; }
  [[nodiscard]] int itemCount() const { return metrics_.itemCount; }
  /// The item must be one of the section's.
  [[nodiscard]] CGRect frameOf(int item) const;
  /// Visits the items that overlap the rectangle, in order, for the price of those and of a search.
  void forEachItemInRect(const CGRect& rect, const ItemVisitor& visit) const;

 private:
  struct Line {
    int firstItem = 0;
    int itemCount = 0;
    double top = 0;
    double height = 0;
    double left = 0;  // of the first item
    double spacing = 0;
  };
  // Items side by side, without the spacing.
  struct Row {
    double count = 0;
    double width = 0;
  };

  [[nodiscard]] double available() const {
    return metrics_.width - metrics_.insets.left - metrics_.insets.right;
  }
  [[nodiscard]] CGSize sizeOf(int item) const {
    return metrics_.uniformSize ? *metrics_.uniformSize : metrics_.sizeOfItem(item);
  }
  [[nodiscard]] Row filled(Row row, double itemWidth) const;
  void spread(Line& line, const Row& row) const;
  [[nodiscard]] Line uniformLine(double top) const;
  [[nodiscard]] Line brokenLine(int firstItem, double top) const;

  [[nodiscard]] int lineCount() const;
  [[nodiscard]] Line line(int index) const;
  template <typename Predicate>
  [[nodiscard]] int firstLineWhere(const Predicate& predicate) const;
  template <typename Visit>
  void forEachFrame(const Line& line, const Visit& visit) const;

  FlowMetrics metrics_;
  Line first_;               // of a section of one size; the others follow from it
  std::vector<Line> lines_;  // of any other
  double bottom_ = 0;
};

}  // namespace kindora
