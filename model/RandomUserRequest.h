// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "model/User.h"
#include "platform/URL.h"
#include "platform/services/HttpSession.h"

namespace kindora {

/// Sends a plain GET to the address in a session of its own and returns at once. The completion
/// runs on the session's callback queue.
void requestRandomUser(const URL& address, HttpSession::Completion completion);

/// Sends the request and hands the user in its reply to the completion, on the session's callback
/// queue. The completion is never called when the request fails or the reply is no JSON object; the
/// status code does not matter. A JSON object of another shape stops the program. The picture is
/// not fetched.
void fetchRandomUser(const URL& address, User::Completion completion);

}  // namespace kindora
