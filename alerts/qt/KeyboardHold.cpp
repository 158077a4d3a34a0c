// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/qt/KeyboardHold.h"

#include <QKeyEvent>

#include "toolkit/controllers/UIApplication.h"

namespace kindora {

void KeyboardHold::setActive(bool active) {
  if (active_ == active) return;
  active_ = active;
  if (item_) active ? begin() : end();
  emit activeChanged();
}

void KeyboardHold::begin() {
  window_ = item_->window();
  if (!window_) {
    item_->setFocus(true);
    return;
  }
  before_ = window_->activeFocusItem();
  window_->installEventFilter(this);
  item_->forceActiveFocus(Qt::OtherFocusReason);
}

void KeyboardHold::end() {
  if (window_) window_->removeEventFilter(this);
  const bool kept = item_->hasActiveFocus();
  item_->setFocus(false);
  // Unless the program has put it elsewhere meanwhile.
  if (kept && before_ && before_->window() == window_) {
    before_->forceActiveFocus(Qt::OtherFocusReason);
  }
  before_ = nullptr;
  window_ = nullptr;
}

bool KeyboardHold::eventFilter(QObject* watched, QEvent* event) {
  if (!item_ || !item_->hasActiveFocus()) return QObject::eventFilter(watched, event);
  if (event->type() == QEvent::ShortcutOverride) {
    event->accept();  // the press comes as a key, then
    return true;
  }
  if (event->type() == QEvent::KeyPress && press(*static_cast<QKeyEvent*>(event))) return true;
  return QObject::eventFilter(watched, event);
}

bool KeyboardHold::press(const QKeyEvent& key) {
  const bool isAltLeft = key.key() == Qt::Key_Left && key.modifiers() == Qt::AltModifier;
  if (key.key() == Qt::Key_Tab || key.key() == Qt::Key_Backtab) {
    moveOn(key.key() == Qt::Key_Tab && !key.modifiers().testFlag(Qt::ShiftModifier));
  } else if (key.key() == Qt::Key_Escape || key.key() == Qt::Key_Back || isAltLeft) {
    UIApplication::sharedApplication()->goBack();
  } else {
    return false;
  }
  return true;
}

void KeyboardHold::moveOn(bool forward) {
  QQuickItem* const first = window_->activeFocusItem()->nextItemInFocusChain(forward);
  QQuickItem* next = first;
  do {
    if (next == nullptr) return;
    if (item_->isAncestorOf(next)) {
      next->forceActiveFocus(forward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
      return;
    }
    next = next->nextItemInFocusChain(forward);
  } while (next != first);
}

}  // namespace kindora
