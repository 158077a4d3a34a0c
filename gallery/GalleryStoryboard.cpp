// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "gallery/GalleryStoryboard.h"

#include "gallery/alerts/AlertsViewController.h"
#include "gallery/curves/CurvesViewController.h"
#include "gallery/grid/SpringyGridViewController.h"
#include "gallery/menu/MenuTableViewController.h"
#include "gallery/phone/CountryTableViewController.h"
#include "gallery/phone/PhoneNumbersViewController.h"
#include "gallery/scratch/ScratchDemoViewController.h"

namespace kindora {
namespace {

constexpr const char* kMenu = "MenuTableViewController";
constexpr const char* kScratch = "ScratchDemoViewController";
constexpr const char* kCurves = "CurvesViewController";
constexpr const char* kSpringyGrid = "SpringyGridViewController";
constexpr const char* kPhoneNumbers = "PhoneNumbersViewController";
constexpr const char* kAlerts = "AlertsViewController";
constexpr const char* kCountries = "CountryTableViewController";

QUrl page(const char* name) {
  return QUrl(QStringLiteral("qrc:/qt/qml/Kindora/Gallery/%1.qml").arg(QLatin1String(name)));
}

template <typename Controller>
UIViewControllerRef make() {
  return makeViewController<Controller>();
}

template <typename Controller>
void connectOutlets(UIViewController& controller) {
  dynamic_cast<Controller&>(controller).connectOutlets();
}

// A demonstration's way from the list is named like its scene.
UIStoryboardSegueTemplate show(const char* scene) {
  return {scene, UIStoryboardSegueKind::show, scene};
}

UIViewControllerRef makeMenu() {
  return makeViewController<MenuTableViewController>(
      QStringLiteral("Gallery"),
      std::vector<MenuRow>{
          {"Scratch-off", "A cover to be rubbed away", "galleryScratch", kScratch},
          {"Curves", "Springs and tweens, plotted", "galleryCurves", kCurves},
          {"Springy grid", "A thousand cells on springs", "galleryGrid", kSpringyGrid},
          {"Phone numbers", "Laid out as they are typed", "galleryPhone", kPhoneNumbers},
          {"Alerts", "Cards that ask and tell", "galleryAlerts", kAlerts}});
}

std::vector<UIStoryboardScene> scenes() {
  return {
      {.identifier = kMenu,
       .make = makeMenu,
       .page = page("Menu/MenuPage"),
       .segues = {show(kScratch), show(kCurves), show(kSpringyGrid), show(kPhoneNumbers),
                  show(kAlerts)}},
      {.identifier = kScratch,
       .make = make<ScratchDemoViewController>,
       .connectOutlets = connectOutlets<ScratchDemoViewController>,
       .page = page("Scratch/ScratchDemoPage")},
      {.identifier = kCurves,
       .make = make<CurvesViewController>,
       .connectOutlets = connectOutlets<CurvesViewController>,
       .page = page("Curves/CurvesPage")},
      {.identifier = kSpringyGrid,
       .make = make<SpringyGridViewController>,
       .page = page("Grid/SpringyGridPage")},
      {.identifier = kPhoneNumbers,
       .make = make<PhoneNumbersViewController>,
       .connectOutlets = connectOutlets<PhoneNumbersViewController>,
       .page = page("Phone/PhoneNumbersPage"),
       .segues = {{std::string(kChooseCountry), UIStoryboardSegueKind::show, kCountries}}},
      {.identifier = kAlerts,
       .make = make<AlertsViewController>,
       .page = page("Alerts/AlertsPage")},
      {.identifier = kCountries,
       .make = make<CountryTableViewController>,
       .page = page("Phone/CountryPage")},
  };
}

}  // namespace

const UIStoryboard& galleryStoryboard() {
  static const UIStoryboard& storyboard = *new UIStoryboard(scenes());  // outlives its screens
  return storyboard;
}

std::shared_ptr<UINavigationController> makeGalleryNavigationController() {
  return makeViewController<UINavigationController>(
      galleryStoryboard().instantiateViewController(kMenu));
}

}  // namespace kindora
