// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "toolkit/controllers/UIViewController.h"

namespace kindora {

enum class UIAlertActionStyle { normal, cancel, destructive };
enum class UIAlertControllerStyle { actionSheet, alert };

/// One button of an alert.
struct UIAlertAction {
  std::string title;
  UIAlertActionStyle style = UIAlertActionStyle::normal;
  std::function<void()> handler;  ///< may be empty; runs when the alert has gone
};

/// A question or a message above everything else. Without actions only the program can close it.
class UIAlertController : public kindora::UIViewController {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("alerts are made by controllers")
  Q_PROPERTY(QString alertTitle READ alertTitle CONSTANT)
  Q_PROPERTY(QString alertMessage READ alertMessage CONSTANT)
  Q_PROPERTY(QStringList actionTitles READ actionTitles CONSTANT)
  Q_PROPERTY(int cancelIndex READ cancelIndex CONSTANT)

 public:
  UIAlertController(const std::optional<std::string>& title,
                    const std::optional<std::string>& message, UIAlertControllerStyle style);

  [[nodiscard]] const std::optional<std::string>& titleText() const { return titleText_; }
  [[nodiscard]] const std::optional<std::string>& message() const { return message_; }
  [[nodiscard]] UIAlertControllerStyle preferredStyle() const { return style_; }
  [[nodiscard]] const std::vector<UIAlertAction>& actions() const { return actions_; }
  /// Before the alert is presented.
  void addAction(UIAlertAction action);

  /// The user chose an action: closes the alert, then runs the handler. Only the first choice
  /// counts.
  Q_INVOKABLE void choose(int index);
  /// Esc, the system's back or a tap beside a sheet: chooses the cancel action, if there is one.
  Q_INVOKABLE bool goBack() override;

  [[nodiscard]] QString alertTitle() const;
  [[nodiscard]] QString alertMessage() const;
  [[nodiscard]] QStringList actionTitles() const;
  [[nodiscard]] int cancelIndex() const;  ///< -1 when there is none
  [[nodiscard]] Q_INVOKABLE bool isDestructive(int index) const;

  [[nodiscard]] bool coversPresenter() const override { return false; }
  [[nodiscard]] double presentationDuration() const override { return 0.25; }
  [[nodiscard]] QUrl page() const override;

 private:
  std::optional<std::string> titleText_;
  std::optional<std::string> message_;
  UIAlertControllerStyle style_;
  std::vector<UIAlertAction> actions_;
  bool chosen_ = false;
};

}  // namespace kindora
