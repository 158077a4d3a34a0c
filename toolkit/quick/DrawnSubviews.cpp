// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/quick/DrawnSubviews.h"

#include <algorithm>
#include <utility>

#include "toolkit/quick/CodeViewItem.h"
#include "toolkit/view/UIView.h"

namespace kindora {

DrawnSubviews::DrawnSubviews() = default;
DrawnSubviews::~DrawnSubviews() = default;

void DrawnSubviews::show(const UIView& view, QQuickItem& parent) {
  again_ = true;
  if (std::exchange(busy_, true)) return;
  while (std::exchange(again_, false)) showOnce(view, parent);
  busy_ = false;
}

void DrawnSubviews::showOnce(const UIView& view, QQuickItem& parent) {
  std::vector<UIViewRef> wanted;
  std::ranges::copy_if(view.subviews(), std::back_inserter(wanted),
                       [](const auto& each) { return each->placer() == UIViewPlacer::record; });
  const auto shows = [](const auto& item, const auto& each) { return item->view() == each; };
  if (std::ranges::equal(items_, wanted, shows)) return;

  std::vector<std::unique_ptr<CodeViewItem>> before = std::exchange(items_, {});
  std::vector<std::unique_ptr<CodeViewItem>> next;
  for (const auto& each : wanted) {
    const auto known = std::ranges::find_if(
        before, [&](const auto& item) { return item && item->view() == each; });
    next.push_back(known != before.end() ? std::move(*known)
                                         : std::make_unique<CodeViewItem>(each, &parent));
    next.back()->setZ(static_cast<double>(next.size()));
    // The keyboard goes from one to the next in the same order.
    if (next.size() > 1) next.back()->stackAfter(next[next.size() - 2].get());
  }
  items_ = std::move(next);
  for (auto& gone : before) retire(std::move(gone));
}

void retire(std::unique_ptr<CodeViewItem> item) {
  if (!item) return;
  item->rest();
  item->setParentItem(nullptr);
  item->setParent(nullptr);
  item.release()->deleteLater();
}

}  // namespace kindora
