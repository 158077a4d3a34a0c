// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/collection/FlowSection.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace kindora {

FlowSection::FlowSection(FlowMetrics metrics, double top) : metrics_(std::move(metrics)) {
  const double linesTop = top + metrics_.insets.top;
  if (metrics_.uniformSize) {
    first_ = uniformLine(linesTop);
  } else {
    double lineTop = linesTop;
    for (int item = 0; item < metrics_.itemCount; item += lines_.back().itemCount) {
      lines_.push_back(brokenLine(item, lineTop));
      lineTop += lines_.back().height + metrics_.lineSpacing;
    }
  }
  double linesBottom = linesTop;
  if (lineCount() > 0) {
    const Line last = line(lineCount() - 1);
    linesBottom = last.top + last.height;
  }
  bottom_ = linesBottom + metrics_.insets.bottom;
}

// The row with as many more items of the width as fit.
FlowSection::Row FlowSection::filled(Row row, double itemWidth) const {
  constexpr double kMost = 1e9;  // what an int can still count
  const double rest = available() - row.width - (row.count - 1) * metrics_.interitemSpacing;
  const double fitting = std::floor(rest / (itemWidth + metrics_.interitemSpacing));
  const double more = fitting > 0 ? std::min(fitting, kMost) : 0;
  return {row.count + more, row.width + more * itemWidth};
}

void FlowSection::spread(Line& line, const Row& row) const {
  const double rest = available() - row.width;
  const bool alone = row.count < 2;
  line.left = metrics_.insets.left + (alone ? std::max(rest / 2, 0.0) : 0);
  line.spacing = alone ? metrics_.interitemSpacing : rest / (row.count - 1);
}

FlowSection::Line FlowSection::uniformLine(double top) const {
  const CGSize size = *metrics_.uniformSize;
  const Row row = filled({1, size.width}, size.width);
  Line line{.itemCount = static_cast<int>(row.count), .top = top, .height = size.height};
  spread(line, row);
  return line;
}

FlowSection::Line FlowSection::brokenLine(int firstItem, double top) const {
  Line line{.firstItem = firstItem, .top = top};
  Row row;
  double lastWidth = 0;
  int item = firstItem;
  for (; item < metrics_.itemCount; ++item) {
    const CGSize size = sizeOf(item);
    const double width = row.width + row.count * metrics_.interitemSpacing + size.width;
    if (item > firstItem && !(width <= available())) break;
    row = {row.count + 1, row.width + size.width};
    line.height = std::max(line.height, size.height);
    lastWidth = size.width;
  }
  line.itemCount = item - firstItem;
  spread(line, item < metrics_.itemCount ? row : filled(row, lastWidth));
  return line;
}

int FlowSection::lineCount() const {
  if (!metrics_.uniformSize) return static_cast<int>(lines_.size());
  return metrics_.itemCount == 0 ? 0 : (metrics_.itemCount - 1) / first_.itemCount + 1;
}

FlowSection::Line FlowSection::line(int index) const {
  if (!metrics_.uniformSize) return lines_[static_cast<std::size_t>(index)];
  Line line = first_;
  line.firstItem = index * first_.itemCount;
  line.itemCount = std::min(first_.itemCount, metrics_.itemCount - line.firstItem);
  line.top = first_.top + index * (first_.height + metrics_.lineSpacing);
  return line;
}

// The number of lines when none is; all after it must be, too.
template <typename Predicate>
int FlowSection::firstLineWhere(const Predicate& predicate) const {
  int low = 0;
  int high = lineCount();
  while (low < high) {
    const int middle = low + (high - low) / 2;
    if (predicate(line(middle))) {
      high = middle;
    } else {
      low = middle + 1;
    }
  }
  return low;
}

template <typename Visit>
void FlowSection::forEachFrame(const Line& line, const Visit& visit) const {
  double left = line.left;
  for (int item = line.firstItem; item < line.firstItem + line.itemCount; ++item) {
    const CGSize size = sizeOf(item);
    visit(item, CGRect{{left, line.top + (line.height - size.height) / 2}, size});
    left += size.width + line.spacing;
  }
}

CGRect FlowSection::frameOf(int item) const {
  const int next = firstLineWhere([&](const Line& line) { return line.firstItem > item; });
  CGRect found;
  forEachFrame(line(next - 1), [&](int candidate, const CGRect& frame) {
    if (candidate == item) found = frame;
  });
  return found;
}

void FlowSection::forEachItemInRect(const CGRect& rect, const ItemVisitor& visit) const {
  const double bottom = rect.origin.y + rect.size.height;
  const int lines = lineCount();
  int index =
      firstLineWhere([&](const Line& line) { return line.top + line.height > rect.origin.y; });
  for (; index < lines; ++index) {
    const Line current = line(index);
    if (!(current.top < bottom)) break;
    forEachFrame(current, [&](int item, const CGRect& frame) {
      if (CGRectIntersectsRect(frame, rect)) visit(item, frame);
    });
  }
}

}  // namespace kindora
