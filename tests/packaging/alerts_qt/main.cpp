// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// Shows Main.qml, opens alerts, answers them by pointer and by keyboard, writes what became of them
// and leaves. With the name of a folder it saves there what the window shows.
#include <QEventLoop>
#include <QGuiApplication>
#include <QImage>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <cstdlib>
#include <iostream>

#include "Alerts.h"
#include "alerts/qt/Alert.h"

namespace {

void press(QQuickWindow& window, Qt::Key key, const QString& text = {}) {
  for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    QKeyEvent event(type, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(&window, &event);
  }
}

void type(QQuickWindow& window, const QString& text) {
  for (const QChar letter : text) press(window, Qt::Key_unknown, letter);
}

void click(QQuickWindow& window, QPointF at) {
  for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
    QMouseEvent event(type, at, at, Qt::LeftButton,
                      type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &event);
  }
}

// The button of an alert that bears the text.
QQuickItem* button(QQuickItem& in, const QString& text) {
  if (in.inherits("QQuickAbstractButton") && in.property("text") == text) return &in;
  for (QQuickItem* child : in.childItems()) {
    if (QQuickItem* found = button(*child, text)) return found;
  }
  return nullptr;
}

void clickButton(QQuickWindow& window, const QString& text) {
  const QQuickItem* found = button(*window.contentItem(), text);
  if (found == nullptr) {
    std::cerr << "no button " << text.toStdString() << '\n';
    std::exit(1);
  }
  click(window, found->mapRectToScene(found->boundingRect()).center());
}

void save(QQuickWindow& window, const char* name) {
  const QStringList arguments = QCoreApplication::arguments();
  if (arguments.size() < 2) return;
  window.grabWindow().save(arguments[1] + QLatin1Char('/') + QLatin1String(name));
}

template <typename Signal>
void waitFor(kindora::Alert& alert, Signal signal) {
  QEventLoop loop;
  QObject::connect(&alert, signal, &loop, &QEventLoop::quit);
  loop.exec();
}

void open(kindora::Alert& alert) {
  alert.open();
  waitFor(alert, &kindora::Alert::presented);
}

void writePlace(const QQuickItem& layout, const QString& name) {
  const auto* item = layout.findChild<QQuickItem*>(name);
  std::cout << name.toStdString() << ' ' << item->x() << ' ' << item->y() << ' ' << item->width()
            << ' ' << item->height() << '\n';
}

}  // namespace

int main(int argc, char* argv[]) {
  QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
  const QGuiApplication application(argc, argv);
  QQmlApplicationEngine engine;
  int warnings = 0;
  QObject::connect(&engine, &QQmlEngine::warnings, [&](const QList<QQmlError>& list) {
    warnings += static_cast<int>(list.size());
  });
  engine.addImportPath(QStringLiteral("qrc:/qt/qml"));  // the default from Qt 6.5 on
  engine.load(QUrl(QStringLiteral("qrc:/qt/qml/Example/Main.qml")));
  if (engine.rootObjects().isEmpty()) return 1;

  auto& window = dynamic_cast<QQuickWindow&>(*engine.rootObjects().constFirst());
  const auto named = [&](const char* property) -> kindora::Alert& {
    return *window.property(property).value<kindora::Alert*>();
  };
  const auto outcome = [&] { return window.property("outcome").toString().toStdString(); };
  window.requestActivate();
  QCoreApplication::processEvents();  // the window gets its size

  static_cast<void>(window.grabWindow());  // and what is in it is laid out
  const auto& layout = *window.property("layout").value<QQuickItem*>();
  writePlace(layout, QStringLiteral("picture"));
  writePlace(layout, QStringLiteral("panel"));

  kindora::Alert& question = named("question");
  open(question);
  save(window, "alert-actions.png");
  clickButton(window, QStringLiteral("Delete"));
  waitFor(question, &kindora::Alert::openedChanged);
  std::cout << "clicked: " << outcome() << '\n';

  kindora::Alert& signIn = named("signIn");
  open(signIn);
  type(window, QStringLiteral("Ann"));
  save(window, "alert-fields.png");
  for (int i = 0; i < 3; ++i) press(window, Qt::Key_Tab);
  press(window, Qt::Key_Return);
  waitFor(signIn, &kindora::Alert::openedChanged);
  std::cout << "typed: " << outcome() << '\n';

  kindora::Alert& choices = named("choices");
  open(choices);
  save(window, "alert-stacked.png");
  press(window, Qt::Key_Escape);
  waitFor(choices, &kindora::Alert::openedChanged);
  std::cout << "escaped: " << outcome() << '\n';

  QEventLoop loop;
  const auto asked = askForName([&](const std::string& name) {
    std::cout << "plays: " << name << '\n';
    loop.quit();
  });
  asked->presentWithCompletion([&] { loop.quit(); });
  loop.exec();
  type(window, QStringLiteral("Bo"));
  save(window, "alert-content.png");
  clickButton(window, QStringLiteral("Play"));
  loop.exec();

  const auto said = say("Saved", [&](int index) {
    std::cout << "button " << index << '\n';
    loop.quit();
  });
  said->didPresentHandler = [&] { loop.quit(); };
  loop.exec();
  save(window, "alert-view.png");
  clickButton(window, QStringLiteral("OK"));
  loop.exec();
  return warnings == 0 ? 0 : 1;
}
