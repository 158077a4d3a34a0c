// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

namespace kindora {

class ModalPresentation;
class UIViewController;

/// A controller's place in the tower of presentations. Presentations put themselves into the places
/// of the two that they join, and take themselves out.
struct PresentationPlace {
  UIViewController& controller;
  std::shared_ptr<ModalPresentation> above = nullptr;  ///< of what the controller presents
  std::weak_ptr<ModalPresentation> below = {};         ///< by which the controller came
};

}  // namespace kindora
