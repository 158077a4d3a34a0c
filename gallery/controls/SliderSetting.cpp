// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "gallery/controls/SliderSetting.h"

#include <QLocale>
#include <algorithm>
#include <cmath>
#include <utility>

namespace kindora {

SliderSetting::SliderSetting(Range range) : range_(std::move(range)), value_(range_.value) {}

void SliderSetting::setValue(double value) {
  if (std::isnan(value)) return;
  const double inside = std::clamp(value, range_.minimum, range_.maximum);
  const double steps = std::round((inside - range_.minimum) / range_.step);
  const double next = std::min(range_.maximum, range_.minimum + steps * range_.step);
  if (next == value_) return;
  value_ = next;
  emit valueChanged();
}

QString SliderSetting::text() const {
  // A value that rounds to nothing has no sign.
  const double shown = std::abs(value_) < std::pow(10, -range_.decimals) / 2 ? 0 : value_;
  const QString number = QLocale::c().toString(shown, 'f', range_.decimals);
  return range_.unit.isEmpty() ? number : number + u' ' + range_.unit;
}

}  // namespace kindora
