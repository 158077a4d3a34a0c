// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QColor>
#include <QPointF>
#include <QString>
#include <memory>
#include <vector>

#include "platform/NSAttributedString.h"
#include "platform/services/TextMeasurer.h"
#include "toolkit/view/UILabel.h"

class QPainter;
class QTextLayout;

namespace kindora {

/// A text broken into lines: measuring and drawing both go by it, so they always agree. Nothing in
/// the text is taken for markup. Baselines stand on whole points.
class TextLines final {
 public:
  enum class Colors { ofParts, ofPainter };

  /// A maximum width that is not above 0 breaks only where the text says so. What is beyond the
  /// maximum number of lines, if that is above 0, is replaced by an ellipsis.
  TextLines(const NSAttributedString& text, const UIFont& font, double maximumWidth,
            int maximumLines, Colors colors = Colors::ofParts);
  ~TextLines();
  TextLines(TextLines&&) noexcept;
  TextLines& operator=(TextLines&&) noexcept;

  [[nodiscard]] TextExtent extent() const;
  /// Each line as it is drawn, with the ellipsis if there is one.
  [[nodiscard]] std::vector<QString> strings() const;
  /// Draws from that top left corner on, each line where the alignment puts it in the width.
  void draw(QPainter& painter, QPointF origin, double width, NSTextAlignment alignment) const;

  /// What one line in the font takes in height.
  [[nodiscard]] static double lineHeight(const UIFont& font);

 private:
  struct Line {
    std::shared_ptr<QTextLayout> layout;  // lines may share one
    int index = 0;                        // in the layout
    double baseline = 0;                  // below the top of all
  };

  void add(const std::shared_ptr<QTextLayout>& layout, int index);

  double maximumWidth_;
  double height_ = 0;
  std::vector<Line> lines_;
};

}  // namespace kindora
