// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QJSValue>
#include <QList>
#include <QObject>
#include <QQmlListProperty>
#include <QString>
#include <memory>

#include "alerts/qt/AlertAction.h"
#include "alerts/qt/AlertTextField.h"

namespace kindora {

class QavAlertAction;
class QavAlertController;

/// An alert for QML. The window needs an AlertLayer on top of its content.
///
///     Alert {
///         id: question
///         title: "Delete?"
///         AlertAction { text: "Keep"; style: AlertAction.Cancel }
///         AlertAction { text: "Delete"; style: AlertAction.Destructive; onTriggered: list.clear()
///         }
///     }
///     Button { onClicked: question.open() }
///
/// What it says is taken over when it opens; only the enabled state of its actions and the text of
/// its fields are followed while it is open.
class Alert : public QObject {
  Q_OBJECT
  QML_ELEMENT
  Q_CLASSINFO("DefaultProperty", "actions")
  Q_PROPERTY(QString title READ title WRITE setTitle NOTIFY changed)
  Q_PROPERTY(QString message READ message WRITE setMessage NOTIFY changed)
  Q_PROPERTY(ActionLayout actionLayout READ actionLayout WRITE setActionLayout NOTIFY changed)
  Q_PROPERTY(QJSValue shouldDismiss READ shouldDismiss WRITE setShouldDismiss NOTIFY changed)
  Q_PROPERTY(QQmlListProperty<kindora::AlertAction> actions READ actions)
  Q_PROPERTY(QQmlListProperty<kindora::AlertTextField> textFields READ textFields)
  Q_PROPERTY(bool opened READ isOpened NOTIFY openedChanged)

 public:
  enum class ActionLayout { Automatic = 0, Horizontal = 1, Vertical = 2 };
  Q_ENUM(ActionLayout)

  using QObject::QObject;
  ~Alert() override;

  [[nodiscard]] const QString& title() const { return title_; }
  void setTitle(const QString& title);
  [[nodiscard]] const QString& message() const { return message_; }
  void setMessage(const QString& message);
  [[nodiscard]] ActionLayout actionLayout() const { return actionLayout_; }
  void setActionLayout(ActionLayout layout);
  /// A function that is given the action and answers false to keep the alert open.
  [[nodiscard]] const QJSValue& shouldDismiss() const { return shouldDismiss_; }
  void setShouldDismiss(const QJSValue& function);
  [[nodiscard]] QQmlListProperty<AlertAction> actions();
  [[nodiscard]] QQmlListProperty<AlertTextField> textFields();
  /// From open until the alert has gone.
  [[nodiscard]] bool isOpened() const { return controller_ != nullptr; }

  /// Ignored while it is open. Above an alert that is just going it opens once that has gone.
  Q_INVOKABLE void open();
  /// Takes the alert away without an action.
  Q_INVOKABLE void close();

 signals:
  void changed();
  void openedChanged();
  /// The alert has come to rest on the screen.
  void presented();

 private:
  [[nodiscard]] bool waitsForAnother();
  void addAction(AlertAction& action);
  [[nodiscard]] bool mayDismiss(const QavAlertAction& chosen);
  void ended();

  QString title_;
  QString message_;
  ActionLayout actionLayout_ = ActionLayout::Automatic;
  QJSValue shouldDismiss_;
  QList<AlertAction*> actions_;
  QList<AlertTextField*> textFields_;
  std::shared_ptr<QavAlertController> controller_;
  QMetaObject::Connection opening_;
};

}  // namespace kindora
