// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// What showing an alert with two actions costs the main thread, against a page with nothing on it
// that is presented in the same way: all views made and laid out, the first frame, in which all is
// still transparent, and the first one in which something is to be seen. Frames are drawn in
// software and read back, which both pay. Then what a thousand alerts leave behind. Time is moved
// by hand.
#include <benchmark/benchmark.h>
#include <malloc.h>

#include <QGuiApplication>
#include <QImage>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickWindow>
#include <cstdlib>
#include <ctime>
#include <memory>

#include "alerts/qt/QavAlertController.h"
#include "alerts/qt/QavAlertControllerTransitioningDelegate.h"
#include "benchmarks/support/Goals.h"
#include "benchmarks/support/HeapUse.h"
#include "platform/fakes/ManualQueue.h"
#include "tests/support/ManualTime.h"
#include "toolkit/controllers/UIApplication.h"

namespace kindora {
namespace {

constexpr int kRepetitions = 5;
constexpr int kShows = 40;
constexpr double kFrame = 1.0 / 60;
constexpr double kTransition = 0.5;  // longer than one takes
constexpr int kAlertsBefore = 100;
constexpr int kAlerts = 1000;

// Seconds of work of the main thread so far; that of other programs does not count.
double worked() {
  timespec time{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
}

// A presented view of the card's colour and nothing else.
class EmptyPage final : public UIViewController {
 public:
  EmptyPage() {
    setModalPresentationStyle(UIModalPresentationStyle::custom);
    setTransitioningDelegate(transition_);
  }
  [[nodiscard]] UIViewRef loadView() override {
    auto view = std::make_shared<UIView>();
    view->setBackgroundColor(UIColor::whiteColor());
    return view;
  }

 private:
  const std::shared_ptr<QavAlertControllerTransitioningDelegate> transition_ =
      std::make_shared<QavAlertControllerTransitioningDelegate>();
};

// A program's window with its alert layer.
class Stage final {
 public:
  Stage() {
    engine_.addImportPath(QStringLiteral("qrc:/qt/qml"));
    QQmlComponent component(&engine_);
    component.setData(
        "import QtQuick\nimport Kindora.Alerts\n"
        "Window { width: 390; height: 844; visible: true; color: 'steelblue'; AlertLayer {} }",
        {});
    window_.reset(qobject_cast<QQuickWindow*>(component.create()));
    if (window_ == nullptr) std::abort();
    QCoreApplication::processEvents();
    empty_ = drawn();
    if (empty_.size() != QSize(390, 844)) std::abort();
    first_ = show([] { return makeAlert(); });
  }

  [[nodiscard]] static UIViewControllerRef makeAlert() {
    const auto alert = QavAlertController::alertControllerWithTitle(
        "Delete the challenge?", "The challenge and its badge are gone for good.",
        QavAlertControllerStyle::alert);
    alert->addAction(QavAlertAction::actionWithTitle("Keep", QavAlertActionStyle::cancel));
    alert->addAction(QavAlertAction::actionWithTitle("Delete", QavAlertActionStyle::destructive));
    return alert;
  }

  // Seconds until the controller is in sight; it has gone afterwards.
  template <typename Make>
  double show(Make make) {
    double begin = worked();
    const UIViewControllerRef controller = make();
    present(controller);
    static_cast<void>(drawn());
    double seconds = worked() - begin;
    time_.advance(kFrame);
    begin = worked();
    const QImage inSight = drawn();
    seconds += worked() - begin;
    if (inSight == empty_) std::abort();
    time_.advance(kTransition);
    dismiss(controller);
    return seconds;
  }

  void openAndClose() {
    const UIViewControllerRef alert = makeAlert();
    present(alert);
    time_.advance(kTransition);
    static_cast<void>(drawn());
    dismiss(alert);
  }

  void collectGarbage() {
    engine_.collectGarbage();
    time_.settle();
    static_cast<void>(drawn());
  }

  /// Seconds that the program's first alert took, for which all that is kept for later ones is
  /// made.
  [[nodiscard]] double first() const { return first_; }

 private:
  void present(const UIViewControllerRef& controller) {
    layer().presentViewController(controller, true);
    if (controller->presentingViewController() == nullptr) std::abort();
  }
  void dismiss(const UIViewControllerRef& controller) {
    layer().dismissViewController(true);
    time_.advance(kTransition);
    if (controller->presentingViewController() != nullptr) std::abort();
    time_.settle();
    if (drawn() != empty_) std::abort();
  }
  [[nodiscard]] QImage drawn() { return window_->grabWindow(); }
  static UIViewController& layer() {
    return *UIApplication::sharedApplication()->keyWindow()->rootViewController();
  }

  ManualTime time_{std::make_shared<ManualQueue>()};
  QQmlEngine engine_;
  std::unique_ptr<QQuickWindow> window_;
  QImage empty_;  // what the window shows without an alert
  double first_ = 0;
};

Stage& stage() {
  static Stage& stage = *new Stage;  // the application ends before statics do
  return stage;
}

template <typename Make>
void measure(benchmark::State& state, Make make) {
  stage();
  double total = 0;
  for (auto iteration : state) {
    const double seconds = stage().show(make);
    state.SetIterationTime(seconds);
    total += seconds;
  }
  state.counters["milliseconds"] = 1000 * total / static_cast<double>(state.iterations());
}

void showAlert(benchmark::State& state) {
  measure(state, Stage::makeAlert);
  state.counters["firstMilliseconds"] = 1000 * stage().first();
}

void showEmptyPage(benchmark::State& state) {
  measure(state, [] { return makeViewController<EmptyPage>(); });
}

// What all allocators together have given out on the main thread: Qt's containers use malloc.
double heapBytes() { return static_cast<double>(mallinfo2().uordblks); }

void openClose(benchmark::State& state) {
  for (auto iteration : state) {
    for (int i = 0; i < kAlertsBefore; ++i) stage().openAndClose();
    stage().collectGarbage();
    const double before = heapBytes();
    const auto ownBefore = static_cast<double>(heapuse::bytes());
    for (int i = kAlertsBefore; i < kAlerts; ++i) stage().openAndClose();
    stage().collectGarbage();
    state.counters["bytesLeft"] = heapBytes() - before;
    state.counters["newBytesLeft"] = static_cast<double>(heapuse::bytes()) - ownBefore;
    state.counters["heapAt100"] = before;
  }
}

BENCHMARK(showEmptyPage)
    ->Name("Alert/EmptyPage")
    ->UseManualTime()
    ->Iterations(kShows)
    ->Repetitions(kRepetitions)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(showAlert)
    ->Name("Alert/Show")
    ->UseManualTime()
    ->Iterations(kShows)
    ->Repetitions(kRepetitions)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(openClose)->Name("Alert/OpenClose")->Iterations(1)->Unit(benchmark::kMillisecond);

// The last 900 alerts may leave what a few tables that grow by themselves take.
constexpr Goal kGoals[] = {
    {"Alert/Show", "Alert/EmptyPage", 5},
    {"Alert/Show", nullptr, 8, "milliseconds"},
    {"Alert/OpenClose", nullptr, 9000, "bytesLeft"},
    {"Alert/OpenClose", nullptr, 9000, "newBytesLeft"},
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
