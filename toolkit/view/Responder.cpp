// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/view/Responder.h"

#include <algorithm>
#include <vector>

namespace kindora {
namespace {

std::vector<Responder*>& chain() {
  static auto& responders = *new std::vector<Responder*>;  // outlives all that stand in it
  return responders;
}

}  // namespace

Responder::~Responder() { std::erase(chain(), this); }

Responder* Responder::firstResponder() { return chain().empty() ? nullptr : chain().front(); }

Responder* Responder::responderFor(ResponderEvents events) {
  const auto found =
      std::ranges::find_if(chain(), [&](const Responder* each) { return each->takes_ == events; });
  return found != chain().end() ? *found : nullptr;
}

void Responder::enterResponderChain() {
  Responder* const before = responderFor(takes_);
  std::erase(chain(), before);
  chain().insert(chain().begin(), this);
  if (before == this) return;
  if (before != nullptr) before->respondingDidChange();
  respondingDidChange();
}

void Responder::leaveResponderChain() {
  if (std::erase(chain(), this) > 0) respondingDidChange();
}

}  // namespace kindora
