// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace kindora {

/// Asks the random-user web service and logs whether it answered.
class MyRequestController final {
 public:
  /// Sends the request and returns at once. Later prints one line: the status code of the response,
  /// whichever it is, or why none came.
  void sendRequest();
};

}  // namespace kindora
