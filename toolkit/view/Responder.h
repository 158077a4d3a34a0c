// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace kindora {

/// What has no place on the screen.
enum class ResponderEvents { keys, motions };

/// Somebody to whom events go that have no place on the screen. All who take some stand in one
/// chain, and at most one, the first responder, at its head; what it does not take goes on to those
/// behind. Nobody waits behind another that takes the same events: the keyboard, once taken over,
/// goes back to nobody. Main thread only.
class Responder {
 public:
  explicit Responder(ResponderEvents takes) : takes_(takes) {}
  Responder(const Responder&) = delete;
  Responder& operator=(const Responder&) = delete;
  /// One that goes leaves the chain.
  virtual ~Responder();

  /// Null while nobody stands in the chain.
  [[nodiscard]] static Responder* firstResponder();
  /// To whom those events go; null when nobody takes them.
  [[nodiscard]] static Responder* responderFor(ResponderEvents events);
  [[nodiscard]] bool isFirstResponder() const { return firstResponder() == this; }
  /// Whether it stands in the chain, and so is given its events.
  [[nodiscard]] bool isResponding() const { return responderFor(takes_) == this; }

 protected:
  /// To the head of the chain, in place of the one that took the same events.
  void enterResponderChain();
  void leaveResponderChain();

 private:
  /// It has begun or ceased to be given its events.
  virtual void respondingDidChange() {}

  ResponderEvents takes_;
};

}  // namespace kindora
