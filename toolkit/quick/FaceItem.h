// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "toolkit/quick/ViewLookItem.h"

namespace kindora {

/// Shows what a view contains; place, alpha and presence are left to the item in which it lies.
class FaceItem : public kindora::ViewLookItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(kindora::ViewHandle record READ record WRITE setRecord NOTIFY recordChanged REQUIRED)

 public:
  using ViewLookItem::ViewLookItem;

  [[nodiscard]] ViewHandle record() const { return record_; }
  void setRecord(const ViewHandle& record);

 signals:
  void recordChanged();

 protected:
  void componentComplete() override;

 private:
  ViewHandle record_;
};

}  // namespace kindora
