// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// Shows Main.qml, scratches, throws the ball, scrolls, writes what became of it and leaves. With
// the name of a file it saves there what the window shows while the grid is scrolled.
#include <QGuiApplication>
#include <QImage>
#include <QMouseEvent>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <iostream>

#include "Game.h"

namespace {

void mouse(QQuickWindow& window, QEvent::Type type, QPointF at) {
  const bool isMove = type == QEvent::MouseMove;
  QMouseEvent event(type, at, at, isMove ? Qt::NoButton : Qt::LeftButton,
                    type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton,
                    Qt::NoModifier);
  QCoreApplication::sendEvent(&window, &event);
}

void drag(QQuickWindow& window, QPointF from, QPointF to, int steps) {
  mouse(window, QEvent::MouseButtonPress, from);
  for (int step = 1; step <= steps; ++step) {
    mouse(window, QEvent::MouseMove, from + (to - from) * step / steps);
  }
}

void save(QQuickWindow& window, const char* name) {
  const QStringList arguments = QCoreApplication::arguments();
  if (arguments.size() < 2) return;
  window.grabWindow().save(arguments[1] + QLatin1Char('/') + QLatin1String(name));
}

template <typename T>
T* named(const QObject& root, const char* property) {
  return root.property(property).template value<T*>();
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
  auto& game = *named<Game>(window, "game");
  auto& ball = *named<QQuickItem>(window, "ball");
  auto& grid = *named<QQuickItem>(window, "grid");
  QCoreApplication::processEvents();  // the window gets its size

  save(window, "covered.png");
  const QColor covered = window.grabWindow().pixelColor(100, 40);
  for (double y = 36; y <= 116; y += 20) {
    drag(window, {320, y}, {40, y}, 28);
    mouse(window, QEvent::MouseButtonRelease, {40, y});
  }
  const QColor scratched = window.grabWindow().pixelColor(100, 40);
  std::cout << "scratched " << qRound(game.progress() * 100) << " %, "
            << covered.name().toStdString() << " became " << scratched.name().toStdString() << '\n';

  save(window, "scratched.png");

  const double content = grid.property("contentHeight").toDouble();
  std::cout << "grid of " << content << " points, " << game.grid()->shownCells().size()
            << " cells made\n";
  mouse(window, QEvent::MouseButtonPress, {108, 283});
  mouse(window, QEvent::MouseButtonRelease, {108, 283});
  std::cout << "pressed cell " << game.property("chosen").toInt() << '\n';

  drag(window, {180, 540}, {180, 440}, 10);
  // How far behind its place a cell is, five to a line.
  const auto lag = [&](int item) {
    return game.grid()->shownCells().at({0, item}).frame.origin.y - (10 + 60 * (item / 5));
  };
  std::cout << "finger at " << game.grid()->panLocation().x << ", " << game.grid()->panLocation().y
            << ": the cell below it lags by " << qRound(lag(22)) << " points, the first by "
            << qRound(lag(0)) << '\n';

  save(window, "scrolled.png");

  QObject::connect(&game, &Game::swollen, [&] {
    std::cout << "and rests with " << ball.mapRectToScene({0, 0, 44, 44}).width() << '\n';
    QCoreApplication::exit(warnings == 0 ? 0 : 1);
  });
  game.swell();
  std::cout << "the ball starts with " << ball.mapRectToScene({0, 0, 44, 44}).width()
            << " points\n";
  return QGuiApplication::exec();
}
