// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0

#include "alerts/card/QavAlertControllerDefaultVisualStyle.h"
#include "alerts/helpers/QavAutoLayout.h"
#include "alerts/qt/ConstraintLayout.h"
#include "alerts/qt/ItemView.h"
#include "alerts/qt/QavAlertController.h"
#include "tests/docs/QmlExample.h"

namespace kindora {
namespace {

constexpr auto kItems = R"(
    Rectangle { id: a }
    Rectangle { id: b }
    Rectangle { id: picture }
    Rectangle { id: text; objectName: "text" }
)";

class AlertsQtExamples : public QmlExample {
 protected:
  // A window's content with the example in it.
  void load(const QByteArray& content) {
    show(
        "import QtQuick\nimport QtQuick.Templates\nimport Kindora.Alerts\n"
        "ConstraintLayout {\n id: root\n width: 100; height: 80\n property string outcome\n" +
        content + "}");
  }
};

TEST_F(AlertsQtExamples, AnAlertOfTheHeader) {
  load(
#include "examples/alerts/qt/Alert.h.1.text"
  );
}

TEST_F(AlertsQtExamples, AQuestionOfThePage) {
  load(
#include "examples/docs/alerts.md.1.text"
  );
}

TEST_F(AlertsQtExamples, AlertWithFieldsOfThePage) {
  load(
#include "examples/docs/alerts.md.2.text"
  );
}

TEST_F(AlertsQtExamples, LayoutOfTheHeader) {
  load(
#include "examples/alerts/qt/ConstraintLayout.h.1.text"
  );
}

TEST_F(AlertsQtExamples, LayoutOfThePage) {
  load(
#include "examples/docs/alerts.md.6.text"
  );
}

TEST_F(AlertsQtExamples, AConstraint) {
  load(QByteArray(kItems) +
#include "examples/alerts/qt/ItemConstraint.h.1.text"
  );
}

TEST_F(AlertsQtExamples, AHelperInQml) {
  load(QByteArray(kItems) + "Component.onCompleted: {\n" +
#include "examples/alerts/qt/ItemAutoLayout.h.1.text"
       "}");
  EXPECT_EQ(root->findChild<QQuickItem*>(QStringLiteral("text"))->y(), 12);
}

TEST_F(AlertsQtExamples, AHelperForItems) {
  const auto layout = place<ConstraintLayout>({0, 0, 100, 80});
  const auto picture = std::make_unique<QQuickItem>(layout.get());
  const auto text = std::make_unique<QQuickItem>(layout.get());
#include "examples/alerts/qt/ItemView.h.1"
  static_cast<void>(drawn());
  EXPECT_EQ(picture->width(), 120);
  EXPECT_EQ(text->width(), 100);
}

// Compiled alone: a window of the toolkit is needed to show them.
[[maybe_unused]] void controllers() {
  {
#include "examples/alerts/qt/QavAlertController.h.1"
  } {
#include "examples/docs/alerts.md.3"
  }
}

}  // namespace
}  // namespace kindora
