// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/quick/FaceItem.h"

namespace kindora {

void FaceItem::setRecord(const ViewHandle& record) {
  if (record_ == record) return;
  record_ = record;
  emit recordChanged();
  if (isComponentComplete()) show(record_.view);
}

void FaceItem::componentComplete() {
  ViewLookItem::componentComplete();
  show(record_.view);
}

}  // namespace kindora
