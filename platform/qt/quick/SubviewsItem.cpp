// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/qt/quick/SubviewsItem.h"

#include <algorithm>

#include "platform/qt/quick/CodeViewItem.h"

namespace kindora {

SubviewsItem::SubviewsItem(QQuickItem* parent) : ViewItem(parent) {}

SubviewsItem::~SubviewsItem() = default;

bool SubviewsItem::isCovered() const { return view() && hasCoveringSubview(*view()); }

void SubviewsItem::viewDidChange() {
  if (view()) drawSubviews(*view(), *this, drawn_);
  ViewItem::viewDidChange();
}

}  // namespace kindora
