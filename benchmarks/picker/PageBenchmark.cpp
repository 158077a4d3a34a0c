// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// What the picker's page costs the main thread with many friends against few: a letter that is
// typed into its search or taken back, until the frame that shows what is found; and a step of a
// scroll through all friends, until its frame. Frames are drawn in software and read back. Then
// what scrolling through all of them, and growing and shrinking, leaves behind.
#include <benchmark/benchmark.h>
#include <malloc.h>

#include <QGuiApplication>
#include <QImage>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <memory>

#include "benchmarks/picker/ManyFriends.h"
#include "benchmarks/support/Goals.h"
#include "model/Friends.h"
#include "platform/fakes/FakeServices.h"
#include "platform/qt/IcuTextService.h"
#include "platform/services/Services.h"
#include "screens/picker/KindoraTableViewController.h"
#include "tests/support/ManualTime.h"

namespace kindora {
namespace {

constexpr int kRepetitions = 5;
constexpr int kLetters = 40;
constexpr int kSteps = 200;
constexpr double kStep = 47;  // points a frame, less than a row
constexpr double kFrame = 1.0 / 60;

// Seconds of work of the main thread so far; that of other programs does not count.
double worked() {
  timespec time{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
}

// The page among that many friends, whose search has begun.
class Stage final {
 public:
  explicit Stage(std::size_t friends) {
    Friends::sharedInstance().friendUsers = manyFriends(friends);
    picker_ = makeViewController<KindoraTableViewController>();
    picker_->loadViewIfNeeded();
    engine_.addImportPath(QStringLiteral("qrc:/qt/qml"));
    QQmlComponent component(&engine_);
    component.setData(
        "import QtQuick\nimport Kindora.Screens.Picker\n"
        "KindoraPage { width: 390; height: 844 }",
        {});
    page_.reset(qobject_cast<QQuickItem*>(component.createWithInitialProperties(
        {{QStringLiteral("controller"), QVariant::fromValue(picker_.get())}})));
    if (page_ == nullptr) std::abort();
    window_.resize(390, 844);
    page_->setParentItem(window_.contentItem());
    window_.show();
    table_ = page_->findChild<QQuickItem*>(QStringLiteral("friendsTable"));
    if (table_ == nullptr) std::abort();
    draw();
  }

  void beginSearch() {
    picker_->searchController->searchBar()->press();
    type("a");
  }
  void type(const char* text) {
    picker_->searchController->searchBar()->edit(QString::fromUtf8(text));
    draw();
  }
  void scrollTo(double y) {
    table_->setProperty("contentY", y);
    draw();
  }
  [[nodiscard]] double end() const {
    return table_->property("contentHeight").toDouble() - table_->height();
  }
  [[nodiscard]] int rows() const { return picker_->tableView()->rowCount(); }
  void showFriends(std::size_t count) {
    Friends::sharedInstance().friendUsers = manyFriends(count);
    picker_->refreshData();
    picker_->tableView()->reloadSections({0}, UITableViewRowAnimation::automatic);
    draw();
    time_.advance(1);
    draw();
  }
  void collectGarbage() {
    engine_.collectGarbage();
    time_.settle();
    draw();
  }

 private:
  void draw() {
    if (window_.grabWindow().isNull()) std::abort();
    time_.advance(kFrame);
  }

  ManualTime time_{installFakeServices().mainQueue};
  QQmlEngine engine_;
  QQuickWindow window_;
  std::shared_ptr<KindoraTableViewController> picker_;
  std::unique_ptr<QQuickItem> page_;
  QQuickItem* table_ = nullptr;
};

void useTextService() {
  Services services = kindora::services();
  services.text = std::make_shared<IcuTextService>();
  installServices(services);
}

void letter(benchmark::State& state) {
  Stage stage(static_cast<std::size_t>(state.range(0)));
  useTextService();
  stage.beginSearch();
  bool longer = true;
  double total = 0;
  for (auto iteration : state) {
    const int before = stage.rows();
    const double begin = worked();
    stage.type(longer ? "an" : "a");
    const double seconds = worked() - begin;
    if ((stage.rows() < before) != longer) std::abort();
    longer = !longer;
    state.SetIterationTime(seconds);
    total += seconds;
  }
  state.counters["milliseconds"] = 1000 * total / static_cast<double>(state.iterations());
  state.counters["rows"] = stage.rows();
}
BENCHMARK(letter)
    ->Name("PickerPage/Letter")
    ->Arg(1'000)
    ->Arg(10'000)
    ->Arg(100'000)
    ->UseManualTime()
    ->Iterations(kLetters)
    ->Repetitions(kRepetitions)
    ->Unit(benchmark::kMillisecond);

void scroll(benchmark::State& state) {
  Stage stage(static_cast<std::size_t>(state.range(0)));
  double y = stage.end() / 2;
  stage.scrollTo(y);
  for (auto iteration : state) {
    const double begin = worked();
    stage.scrollTo(y += kStep);
    state.SetIterationTime(worked() - begin);
  }
}
BENCHMARK(scroll)
    ->Name("PickerPage/Scroll")
    ->Arg(1'000)
    ->Arg(10'000)
    ->UseManualTime()
    ->Iterations(kSteps)
    ->Repetitions(kRepetitions)
    ->Unit(benchmark::kMillisecond);

// What all allocators together have given out on the main thread: Qt's containers use malloc.
double heapBytes() { return static_cast<double>(mallinfo2().uordblks); }

void roundTrip(Stage& stage, std::size_t friends) {
  constexpr double kFling = 2000;
  for (double y = 0; y < stage.end(); y += kFling) stage.scrollTo(y);
  for (std::size_t left = friends; left > 10; left /= 4) stage.showFriends(left);
  stage.showFriends(friends);
  stage.scrollTo(0);
  stage.collectGarbage();
}

void memory(benchmark::State& state) {
  const auto friends = static_cast<std::size_t>(state.range(0));
  Stage stage(friends);
  for (auto iteration : state) {
    roundTrip(stage, friends);
    const double before = heapBytes();
    for (int i = 0; i < 2; ++i) roundTrip(stage, friends);
    state.counters["bytesLeft"] = std::max(0.0, heapBytes() - before);
    state.counters["heapBefore"] = before;
  }
}
BENCHMARK(memory)
    ->Name("PickerPage/Memory")
    ->Arg(10'000)
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);

constexpr Goal kGoals[] = {
    {"PickerPage/Letter/10000", "PickerPage/Letter/1000", 2},
    {"PickerPage/Letter/10000", nullptr, 16, "milliseconds"},
    {"PickerPage/Letter/100000", nullptr, 60, "milliseconds"},
    {"PickerPage/Scroll/10000", "PickerPage/Scroll/1000", 1.3},
    {"PickerPage/Memory/10000", nullptr, 20'000, "bytesLeft"},
};

}  // namespace
}  // namespace kindora

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("QSG_RENDER_LOOP", "basic");
  QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
  const QGuiApplication application(argc, argv);
  return kindora::runBenchmarks(argc, argv, kindora::kGoals);
}
