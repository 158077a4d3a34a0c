// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/quick/SubviewsItem.h"

namespace kindora {

SubviewsItem::SubviewsItem(QQuickItem* parent) : ViewItem(parent) {}

SubviewsItem::~SubviewsItem() = default;

bool SubviewsItem::isCovered() const { return view() && hasCoveringSubview(*view()); }

void SubviewsItem::viewDidChange() {
  if (view()) drawn_.show(*view(), *this);
  ViewItem::viewDidChange();
}

}  // namespace kindora
