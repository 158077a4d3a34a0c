// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QColor>
#include <QFont>
#include <QPointF>
#include <QQuickItem>

#include "platform/Subscription.h"
#include "platform/UIFont.h"
#include "toolkit/controllers/ViewHandle.h"
#include "toolkit/quick/ImageHandle.h"
#include "toolkit/view/UIView.h"

namespace kindora {

class UIImageView;

/// The colour in which a view shows its template image; invalid for any other image.
[[nodiscard]] QColor templateTint(const UIImageView& view);

/// Offers QML what a view shows, and follows its changes.
class ViewLookItem : public QQuickItem {
  Q_OBJECT
  QML_ANONYMOUS
  /// The view itself, for a face that is to show it.
  Q_PROPERTY(kindora::ViewHandle shownView READ shownView NOTIFY viewChanged)
  Q_PROPERTY(QString text READ text NOTIFY viewChanged)
  Q_PROPERTY(QColor textColor READ textColor NOTIFY viewChanged)
  Q_PROPERTY(bool hasTextFont READ hasTextFont NOTIFY viewChanged)
  Q_PROPERTY(QFont textFont READ textFont NOTIFY viewChanged)
  Q_PROPERTY(QFont unscaledTextFont READ unscaledTextFont NOTIFY viewChanged)
  Q_PROPERTY(int textAlignment READ textAlignment NOTIFY viewChanged)
  Q_PROPERTY(kindora::ImageHandle image READ image NOTIFY viewChanged)
  Q_PROPERTY(QColor imageTint READ imageTint NOTIFY viewChanged)
  Q_PROPERTY(bool imageFits READ imageFits NOTIFY viewChanged)
  Q_PROPERTY(bool shown READ isShown NOTIFY viewChanged)
  Q_PROPERTY(double shadowOpacity READ shadowOpacity NOTIFY viewChanged)
  Q_PROPERTY(QPointF shadowOffset READ shadowOffset NOTIFY viewChanged)
  Q_PROPERTY(double shadowRadius READ shadowRadius NOTIFY viewChanged)
  Q_PROPERTY(QPointF translation READ translation NOTIFY viewChanged)
  Q_PROPERTY(double cornerRadius READ cornerRadius NOTIFY viewChanged)
  Q_PROPERTY(QString spoken READ spoken NOTIFY viewChanged)
  Q_PROPERTY(bool heading READ isHeading NOTIFY viewChanged)
  Q_PROPERTY(bool announced READ isAnnounced NOTIFY viewChanged)
  Q_PROPERTY(double layoutProgress READ layoutProgress NOTIFY viewChanged)

 public:
  explicit ViewLookItem(QQuickItem* parent = nullptr);

  [[nodiscard]] ViewHandle shownView() const { return {view_}; }
  [[nodiscard]] QString text() const;
  [[nodiscard]] QColor textColor() const;  ///< invalid when the storyboard is to choose
  /// False when the storyboard is to choose; then `textFont` has 16 points.
  [[nodiscard]] bool hasTextFont() const;
  [[nodiscard]] QFont textFont() const;
  /// The same font, whatever the user's scale of texts.
  [[nodiscard]] QFont unscaledTextFont() const;
  /// A horizontal Qt::AlignmentFlag; 0 when the storyboard is to choose.
  [[nodiscard]] int textAlignment() const;
  [[nodiscard]] ImageHandle image() const;
  /// Of a template image; invalid for any other.
  [[nodiscard]] QColor imageTint() const;
  /// Whether all of the image is to show, rather than fill the view.
  [[nodiscard]] bool imageFits() const;
  /// Not removed from its superview and not fully transparent: only then is it drawn, pressed or
  /// read aloud.
  [[nodiscard]] bool isShown() const;
  [[nodiscard]] double shadowOpacity() const;
  [[nodiscard]] QPointF shadowOffset() const;
  /// Corner radius of what casts the shadow, in points.
  [[nodiscard]] double shadowRadius() const;
  [[nodiscard]] QPointF translation() const;
  [[nodiscard]] double cornerRadius() const;
  /// What is read aloud for the view; empty when it does not say.
  [[nodiscard]] QString spoken() const;
  [[nodiscard]] bool isHeading() const;
  /// Read aloud as soon as it shows.
  [[nodiscard]] bool isAnnounced() const;
  /// How many of its changes of layout the view has gone through, with fractions on the way.
  [[nodiscard]] double layoutProgress() const;
  /// Looks at the view anew, as after a change.
  void refresh() { viewDidChange(); }

 signals:
  void viewChanged();

 protected:
  [[nodiscard]] const UIViewRef& view() const { return view_; }
  /// The view if it is an image view, or the one inside it if it is a button; else null.
  [[nodiscard]] const UIImageView* imageView() const;
  /// Follows the view, or none, from now on, and looks at it.
  void show(UIViewRef view);
  virtual void viewDidChange() { emit viewChanged(); }

 private:
  [[nodiscard]] UIFont chosenFont() const;
  void windowTintDidChange();
  void looksDidChange();

  UIViewRef view_;
  Subscription looks_;
  Subscription subscription_;
};

}  // namespace kindora
