// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// How long the app takes to its first frame, how much memory it then holds and what it does while
// nobody touches it, against a window with nothing in it. Each run is a process of its own, which
// reports on its standard output; the program starts itself with the name of the window to open.
#include <benchmark/benchmark.h>

#include <QAbstractEventDispatcher>
#include <QFile>
#include <QGuiApplication>
#include <QProcess>
#include <QQmlApplicationEngine>
#include <QQuickWindow>
#include <QTimer>
#include <chrono>
#include <cstdio>
#include <cstring>

#include "main/Launch.h"

namespace {

constexpr int kSettleMilliseconds = 2000;
constexpr int kIdleMilliseconds = 3000;

QString ownPath;

// Resident memory in kilobytes.
double residentMemory() {
  QFile status(QStringLiteral("/proc/self/status"));
  if (!status.open(QIODevice::ReadOnly)) return 0;
  for (const QByteArray& line : status.readAll().split('\n')) {
    if (line.startsWith("VmRSS:")) return line.mid(6).trimmed().split(' ').front().toDouble();
  }
  return 0;
}

// The process that is measured. Prints "frame KILOBYTES" at the first frame, and when it is told to
// stay "idle FRAMES WAKES" after a while of doing nothing.
int runWindow(int argc, char* argv[], bool app, bool stays) {
  const QGuiApplication application(argc, argv);
  QQmlApplicationEngine engine;
  if (app) {
    if (!kindora::launch(engine)) return EXIT_FAILURE;
  } else {
    engine.loadData("import QtQuick\nWindow { width: 390; height: 844; visible: true }");
  }
  auto* window = qobject_cast<QQuickWindow*>(engine.rootObjects().value(0));
  if (window == nullptr) return EXIT_FAILURE;
  int frames = 0;
  int wakes = 0;
  QObject::connect(
      window, &QQuickWindow::frameSwapped, &application,
      [&] {
        if (++frames != 1) return;
        std::printf("frame %.0f\n", residentMemory());
        std::fflush(stdout);
        if (!stays) QGuiApplication::quit();
      },
      Qt::QueuedConnection);
  if (stays) {
    QTimer::singleShot(kSettleMilliseconds, &application, [&] {
      frames = 0;
      QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake,
                       &application, [&] { ++wakes; });
      QTimer::singleShot(kIdleMilliseconds, &application, [&] {
        std::printf("idle %d %d\n", frames, wakes);
        QGuiApplication::quit();
      });
    });
  }
  return QGuiApplication::exec();
}

QList<QByteArray> line(QProcess& process) {
  while (!process.canReadLine() && process.waitForReadyRead(20000)) {
  }
  return process.readLine().trimmed().split(' ');
}

void startup(benchmark::State& state, const QString& window) {
  double memory = 0;
  for (auto _ : state) {
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    const auto begin = std::chrono::steady_clock::now();
    process.start(ownPath, {QStringLiteral("--window=") + window});
    const QList<QByteArray> words = line(process);
    const std::chrono::duration<double> passed = std::chrono::steady_clock::now() - begin;
    state.SetIterationTime(passed.count());
    if (words.size() != 2) state.SkipWithError("no frame");
    memory = words.value(1).toDouble();
    process.waitForFinished();
  }
  state.counters["resident_kB"] = memory;
}

void idle(benchmark::State& state, const QString& window) {
  for (auto _ : state) {
    QProcess process;
    process.start(ownPath, {QStringLiteral("--window=") + window, QStringLiteral("--stay")});
    line(process);
    const QList<QByteArray> words = line(process);
    if (words.size() != 3) state.SkipWithError("no report");
    state.counters["frames"] = words.value(1).toDouble();
    state.counters["wakes"] = words.value(2).toDouble();
    process.waitForFinished();
  }
}

}  // namespace

int main(int argc, char* argv[]) {
  constexpr const char* kWindowOption = "--window=";
  if (argc > 1 && std::strncmp(argv[1], kWindowOption, std::strlen(kWindowOption)) == 0) {
    const bool app = std::strcmp(argv[1] + std::strlen(kWindowOption), "kindora") == 0;
    return runWindow(argc, argv, app, argc > 2);
  }
  ownPath = QString::fromLocal8Bit(argv[0]);
  const auto times = [](auto* benchmark, int iterations) {
    benchmark->UseManualTime()->Iterations(iterations)->Unit(benchmark::kMillisecond);
  };
  times(benchmark::RegisterBenchmark("Startup/EmptyWindow", startup, QStringLiteral("empty")), 15);
  times(benchmark::RegisterBenchmark("Startup/Kindora", startup, QStringLiteral("kindora")), 15);
  benchmark::RegisterBenchmark("Idle/EmptyWindow", idle, QStringLiteral("empty"))->Iterations(1);
  benchmark::RegisterBenchmark("Idle/Kindora", idle, QStringLiteral("kindora"))->Iterations(1);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
