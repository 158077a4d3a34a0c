// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "model/MyRequestController.h"

#include <memory>
#include <string>
#include <variant>

#include "model/RandomUserAddress.h"
#include "model/RandomUserRequest.h"
#include "platform/services/Services.h"

namespace kindora {

void MyRequestController::sendRequest() {
  requestRandomUser(randomUserAddress(), [console = services().console](const HttpResult& result) {
    if (const auto* error = std::get_if<HttpError>(&result)) {
      console->printLine("URL Session Task Failed: " + error->localizedDescription);
    } else {
      const int status = std::get<HttpResponse>(result).statusCode;
      console->printLine("URL Session Task Succeeded: HTTP " + std::to_string(status));
    }
  });
}

}  // namespace kindora
