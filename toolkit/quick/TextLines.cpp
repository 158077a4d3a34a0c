// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/quick/TextLines.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QTextLayout>
#include <algorithm>
#include <cmath>

#include "toolkit/controllers/Colors.h"
#include "toolkit/quick/Appearance.h"
#include "toolkit/view/ThemeValues.h"

namespace kindora {
namespace {

constexpr double kUnlimited = 1e6;  // points
// What adding up widths and frames may cost. Without it a text would not fit into its own width.
constexpr double kTolerance = 0.01;  // points

// Unhinted: only then does a line take the same width at every number of pixels a point.
QFont layoutFont(const UIFont& font) {
  QFont result = resolvedFont(font);
  result.setHintingPreference(QFont::PreferNoHinting);
  return result;
}

QList<QTextLayout::FormatRange> formatsOf(const NSAttributedString& text,
                                          TextLines::Colors colors) {
  QList<QTextLayout::FormatRange> formats;
  for (const auto& [range, attributes] : text.runs()) {
    QTextLayout::FormatRange format;
    format.start = static_cast<int>(range.location);
    format.length = static_cast<int>(range.length);
    if (attributes.font) format.format.setFont(layoutFont(*attributes.font));
    if (attributes.foregroundColor && colors == TextLines::Colors::ofParts) {
      format.format.setForeground(toQColor(theme::drawnText(*attributes.foregroundColor)));
    }
    formats.push_back(format);
  }
  return formats;
}

// The formats of the part of a text that begins there.
QList<QTextLayout::FormatRange> formatsFrom(int start, QList<QTextLayout::FormatRange> formats) {
  for (auto& format : formats) {
    const int end = format.start + format.length;
    format.start = std::max(0, format.start - start);
    format.length = std::max(0, end - start - format.start);
  }
  formats.removeIf([](const auto& format) { return format.length == 0; });
  return formats;
}

std::shared_ptr<QTextLayout> laidOut(const QString& text, const QFont& font,
                                     const QList<QTextLayout::FormatRange>& formats, double width) {
  auto layout = std::make_shared<QTextLayout>(text, font);
  QTextOption option(Qt::AlignLeft | Qt::AlignAbsolute);
  option.setWrapMode(width > 0 ? QTextOption::WrapAtWordBoundaryOrAnywhere : QTextOption::NoWrap);
  option.setUseDesignMetrics(true);
  layout->setTextOption(option);
  layout->setFormats(formats);
  layout->beginLayout();
  for (QTextLine line = layout->createLine(); line.isValid(); line = layout->createLine()) {
    line.setLineWidth(width > 0 ? width + kTolerance : kUnlimited);
  }
  layout->endLayout();
  return layout;
}

// One line with as much of the text as fits before an ellipsis, which looks like what it follows.
std::shared_ptr<QTextLayout> elided(const QString& text, const QFont& font,
                                    const QList<QTextLayout::FormatRange>& formats, double width) {
  const auto withFirst = [&](qsizetype count) {
    auto cut = formats;
    for (auto& format : cut) {
      if (format.start + format.length >= count) format.length = static_cast<int>(count) + 1;
    }
    return laidOut(text.left(count) + QChar(0x2026), font, cut, 0);
  };
  qsizetype fits = 0;
  qsizetype tooMany = text.size() + 1;
  while (tooMany - fits > 1) {
    const qsizetype middle = (fits + tooMany) / 2;
    const bool within = withFirst(middle)->lineAt(0).naturalTextWidth() <= width + kTolerance;
    (within ? fits : tooMany) = middle;
  }
  while (fits > 0 && (text[fits - 1].isSpace() || text[fits - 1].isHighSurrogate())) --fits;
  return withFirst(fits);
}

}  // namespace

TextLines::TextLines(const NSAttributedString& text, const UIFont& font, double maximumWidth,
                     int maximumLines, Colors colors)
    : maximumWidth_(maximumWidth) {
  if (text.string().empty()) return;
  const QString all =
      QString::fromStdString(text.string()).replace(QLatin1Char('\n'), QChar::LineSeparator);
  const QFont ownFont = layoutFont(font);
  const auto formats = formatsOf(text, colors);
  const auto layout = laidOut(all, ownFont, formats, maximumWidth);
  const int count = layout->lineCount();
  const int shown = maximumLines > 0 ? std::min(count, maximumLines) : count;
  for (int index = 0; index < shown; ++index) {
    const QTextLine line = layout->lineAt(index);
    if (index == shown - 1 && shown < count) {
      const int start = line.textStart();
      const QString rest = all.mid(start).section(QChar::LineSeparator, 0, 0);
      add(elided(rest, ownFont, formatsFrom(start, formats),
                 maximumWidth > 0 ? maximumWidth : kUnlimited),
          0);
    } else {
      add(layout, index);
    }
  }
}

TextLines::~TextLines() = default;
TextLines::TextLines(TextLines&&) noexcept = default;
TextLines& TextLines::operator=(TextLines&&) noexcept = default;

void TextLines::add(const std::shared_ptr<QTextLayout>& layout, int index) {
  const QTextLine line = layout->lineAt(index);
  const double baseline = height_ + std::ceil(line.ascent());
  height_ = baseline + std::ceil(line.descent());
  lines_.push_back({layout, index, baseline});
}

TextExtent TextLines::extent() const {
  if (lines_.empty()) return {};
  double width = 0;
  for (const Line& each : lines_) {
    width = std::max(width, each.layout->lineAt(each.index).naturalTextWidth());
  }
  width = std::ceil(width - kTolerance);
  if (maximumWidth_ > 0) width = std::min(width, maximumWidth_);
  return {.size = {width, height_},
          .firstBaseline = lines_.front().baseline,
          .lastBaseline = lines_.back().baseline};
}

std::vector<QString> TextLines::strings() const {
  std::vector<QString> result;
  for (const Line& each : lines_) {
    const QTextLine line = each.layout->lineAt(each.index);
    result.push_back(each.layout->text().mid(line.textStart(), line.textLength()));
  }
  return result;
}

void TextLines::draw(QPainter& painter, QPointF origin, double width,
                     NSTextAlignment alignment) const {
  for (const Line& each : lines_) {
    const QTextLine line = each.layout->lineAt(each.index);
    const double left = width - line.naturalTextWidth();
    const double x = alignment == NSTextAlignment::left     ? 0
                     : alignment == NSTextAlignment::center ? left / 2
                                                            : left;
    line.draw(&painter, origin + QPointF(x, each.baseline - line.ascent()) - line.position());
  }
}

double TextLines::lineHeight(const UIFont& font) {
  const QFontMetricsF metrics(layoutFont(font));
  return std::ceil(metrics.ascent()) + std::ceil(metrics.descent());
}

}  // namespace kindora
