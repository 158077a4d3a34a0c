// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include <gmock/gmock.h>

#include "tests/toolkit/hosts/HostFixture.h"
#include "toolkit/controllers/UIStaticTableViewController.h"
#include "toolkit/quick/QtViewServices.h"
#include "toolkit/view/UITextField.h"

namespace kindora {
namespace {

using ::testing::ElementsAre;

// A form of three fields and a row to press.
class FormController final : public UIStaticTableViewController {
 public:
  std::weak_ptr<UITextField> first, second, third;
  std::vector<int> pressed;

  FormController() : UIStaticTableViewController({"Name", "Number", "Message", "Photo"}) {
    connectOutlet(first, "first", *view());
    connectOutlet(second, "second", *view());
    connectOutlet(third, "third", *view());
  }
  void tableViewDidSelectRowAtIndexPath(IndexPath path) override {
    pressed.push_back(path.section);
  }
};

class FormPageTest : public HostFixture {
 protected:
  FormPageTest() {
    installViewServices(makeQtViewServices());
    draw(R"(FormPage {
              id: form
              required property UIStaticTableViewController controller
              FormSection {
                controller: form.controller
                section: 0
                FieldOutlet { owner: form.controller; outlet: "first"; label: "Name field"; width: 200 }
              }
              FormSection {
                controller: form.controller
                section: 1
                FieldOutlet { owner: form.controller; outlet: "second"; label: "Number field"; width: 200 }
              }
              FormSection {
                controller: form.controller
                section: 2
                FieldOutlet { owner: form.controller; outlet: "third"; label: "Message field"; width: 200 }
              }
              FormSection {
                controller: form.controller
                section: 3
                action: "Add Photo"
              }
            })",
         {{QStringLiteral("controller"),
           QVariant::fromValue<UIStaticTableViewController*>(controller.get())}});
    static_cast<void>(drawn());  // columns are laid out for the first frame
  }
  [[nodiscard]] QRectF at(const char* name) { return place(spoken(QString::fromLatin1(name))); }
  static void edit(const std::weak_ptr<UITextField>& field) {
    field.lock()->becomeFirstResponder();
  }

  const std::shared_ptr<FormController> controller = makeViewController<FormController>();
};

TEST_F(FormPageTest, SectionsStandBelowEachOtherUnderTheirHeadings) {
  EXPECT_EQ(role(QStringLiteral("Name")), QAccessible::Heading);
  EXPECT_LT(at("Name").bottom(), at("Name field").top());
  EXPECT_LT(at("Name field").bottom(), at("Number").top());
  EXPECT_LT(at("Number field").bottom(), at("Message").top());
}

TEST_F(FormPageTest, TheRowIsPressedBesideItsField) {
  clickAt({300, at("Number field").center().toPoint().y()});
  EXPECT_THAT(controller->pressed, ElementsAre(1));
}

TEST_F(FormPageTest, ARowWithAnActionIsReadAloudAndPressedByTheKeyboard) {
  EXPECT_EQ(role(QStringLiteral("Add Photo")), QAccessible::Button);
  spoken(QStringLiteral("Add Photo"))->forceActiveFocus(Qt::TabFocusReason);
  press(Qt::Key_Return);
  EXPECT_THAT(controller->pressed, ElementsAre(3));
}

TEST_F(FormPageTest, ARowWithAnActionIsPressedByAnAssistiveTool) {
  pressByTool(QStringLiteral("Add Photo"));
  EXPECT_THAT(controller->pressed, ElementsAre(3));
}

TEST_F(FormPageTest, WhatGetsTheKeyboardComesIntoSight) {
  host->setHeight(160);
  edit(controller->third);
  EXPECT_GE(at("Message field").top(), 0);
  EXPECT_LE(at("Message field").bottom(), 160);
  edit(controller->first);
  EXPECT_EQ(at("Name field").top(), 44) << "with its heading";
}

TEST_F(FormPageTest, WhatHasTheKeyboardStaysInSightWhenTheRoomShrinks) {
  edit(controller->third);
  const double before = at("Message field").top();
  EXPECT_GT(before, 200);
  host->setHeight(200);
  EXPECT_LE(at("Message field").bottom(), 200);
  EXPECT_GE(at("Message field").top(), 0);
}

}  // namespace
}  // namespace kindora
