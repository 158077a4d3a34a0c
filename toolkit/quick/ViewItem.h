// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QColor>
#include <QFont>
#include <QPointF>
#include <QQuickItem>
#include <memory>
#include <optional>

#include "platform/Subscription.h"
#include "toolkit/controllers/ViewHandle.h"
#include "toolkit/quick/ImageHandle.h"
#include "toolkit/quick/KeyframeTransform.h"
#include "toolkit/view/UIView.h"
#include "toolkit/view/UIViewRenderer.h"

namespace kindora {

class UIImageView;

/// The colour in which a view shows its template image; invalid for any other image.
[[nodiscard]] QColor templateTint(const UIImageView& view);

/// Draws the view that an outlet names: takes alpha, scale, input and presence from it, offers the
/// rest as properties, and reports to it the place that the storyboard gives to the item. Stops
/// when the owner has no such outlet.
///
/// In place of an outlet it may be given a view itself. Then it only shows what the view contains:
/// place, alpha and presence are left to the item in which it lies.
class ViewItem : public QQuickItem, private UIViewRenderer {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(QObject* owner READ owner WRITE setOwner NOTIFY ownerChanged REQUIRED)
  Q_PROPERTY(QString outlet READ outlet WRITE setOutlet NOTIFY outletChanged REQUIRED)
  Q_PROPERTY(kindora::ViewHandle record READ record WRITE setRecord NOTIFY recordChanged)
  Q_PROPERTY(QString text READ text NOTIFY viewChanged)
  Q_PROPERTY(QColor textColor READ textColor NOTIFY viewChanged)
  Q_PROPERTY(bool hasTextFont READ hasTextFont NOTIFY viewChanged)
  Q_PROPERTY(QFont textFont READ textFont NOTIFY viewChanged)
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
  explicit ViewItem(QQuickItem* parent = nullptr);
  ~ViewItem() override;

  [[nodiscard]] QObject* owner() const { return owner_; }
  void setOwner(QObject* owner);
  [[nodiscard]] const QString& outlet() const { return outlet_; }
  void setOutlet(const QString& outlet);

  [[nodiscard]] ViewHandle record() const { return {record_}; }
  void setRecord(const ViewHandle& record);
  /// Looks at the view anew, as after a change.
  void refresh() { viewDidChange(); }

  [[nodiscard]] QString text() const;
  [[nodiscard]] QColor textColor() const;  ///< invalid when the storyboard is to choose
  /// False when the storyboard is to choose; then `textFont` has 16 points.
  [[nodiscard]] bool hasTextFont() const;
  [[nodiscard]] QFont textFont() const;
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

 signals:
  void ownerChanged();
  void outletChanged();
  void recordChanged();
  void viewChanged();

 protected:
  [[nodiscard]] const UIViewRef& view() const { return view_; }
  /// The view if it is an image view, or the one inside it if it is a button; else null.
  [[nodiscard]] const UIImageView* imageView() const;
  void componentComplete() override;
  void geometryChange(const QRectF& now, const QRectF& before) override;
  virtual void viewDidChange();

 private:
  [[nodiscard]] std::optional<CGPoint> originInWindow() const override;
  void leave();
  void connectView();
  void windowTintDidChange();

  QObject* owner_ = nullptr;
  QString outlet_;
  UIViewRef record_;
  UIViewRef view_;
  Subscription subscription_;
  KeyframeTransform keyframeTransform_;
};

}  // namespace kindora
