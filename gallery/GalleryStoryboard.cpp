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
#include "toolkit/controllers/PageUrl.h"

namespace kindora {
namespace {

constexpr const char* kMenu = "MenuTableViewController";
constexpr const char* kScratch = "ScratchDemoViewController";
constexpr const char* kCurves = "CurvesViewController";
constexpr const char* kSpringyGrid = "SpringyGridViewController";
constexpr const char* kPhoneNumbers = "PhoneNumbersViewController";
constexpr const char* kAlerts = "AlertsViewController";
constexpr const char* kCountries = "CountryTableViewController";

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
       .page = pageUrl(u"Kindora.Gallery.Menu", u"MenuPage"),
       .segues = {show(kScratch), show(kCurves), show(kSpringyGrid), show(kPhoneNumbers),
                  show(kAlerts)}},
      {.identifier = kScratch,
       .make = makeSceneController<ScratchDemoViewController>,
       .connectOutlets = connectSceneOutlets<ScratchDemoViewController>,
       .page = pageUrl(u"Kindora.Gallery.Scratch", u"ScratchDemoPage")},
      {.identifier = kCurves,
       .make = makeSceneController<CurvesViewController>,
       .connectOutlets = connectSceneOutlets<CurvesViewController>,
       .page = pageUrl(u"Kindora.Gallery.Curves", u"CurvesPage")},
      {.identifier = kSpringyGrid,
       .make = makeSceneController<SpringyGridViewController>,
       .page = pageUrl(u"Kindora.Gallery.Grid", u"SpringyGridPage")},
      {.identifier = kPhoneNumbers,
       .make = makeSceneController<PhoneNumbersViewController>,
       .connectOutlets = connectSceneOutlets<PhoneNumbersViewController>,
       .page = pageUrl(u"Kindora.Gallery.Phone", u"PhoneNumbersPage"),
       .segues = {{std::string(kChooseCountry), UIStoryboardSegueKind::show, kCountries}}},
      {.identifier = kAlerts,
       .make = makeSceneController<AlertsViewController>,
       .page = pageUrl(u"Kindora.Gallery.Alerts", u"AlertsPage")},
      {.identifier = kCountries,
       .make = makeSceneController<CountryTableViewController>,
       .page = pageUrl(u"Kindora.Gallery.Phone", u"CountryPage")},
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
