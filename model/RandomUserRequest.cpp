// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "model/RandomUserRequest.h"

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <variant>

#include "platform/FatalError.h"
#include "platform/services/Services.h"

namespace kindora {
namespace {

template <typename T>
const T& required(const JsonObject& object, std::string_view key) {
  const Json* member = memberOf(object, key);
  const T* value = member == nullptr ? nullptr : member->as<T>();
  if (value == nullptr) fatalError("the reply lacks a proper \"" + std::string(key) + "\"");
  return *value;
}

const JsonObject& firstObject(const JsonArray& array) {
  const JsonObject* object = array.empty() ? nullptr : array.front().as<JsonObject>();
  if (object == nullptr) fatalError("the reply's first result is no object");
  return *object;
}

void fillUser(User& user, const JsonObject& reply, const TextService& text) {
  const JsonObject& result = firstObject(required<JsonArray>(reply, "results"));
  const JsonObject& person = required<JsonObject>(result, "user");
  const JsonObject& name = required<JsonObject>(person, "name");
  const std::string& first = required<std::string>(name, "first");
  const std::string& last = required<std::string>(name, "last");
  const JsonObject& picture = required<JsonObject>(person, "picture");
  const std::string& medium = required<std::string>(picture, "medium");

  user.name = text.capitalized(first) + " " + text.capitalized(last);
  user.pictureURL = URL::URLWithString(medium);
}

}  // namespace

void requestRandomUser(const URL& address, HttpSession::Completion completion) {
  const std::shared_ptr<HttpSession> session = services().http->makeSession();
  session->dataTask({.url = address, .method = "GET", .headers = {}, .body = {}},
                    std::move(completion));
}

void fetchRandomUser(const URL& address, User::Completion completion) {
  requestRandomUser(
      address, [user = std::make_shared<User>(), json = services().json, text = services().text,
                completion = std::move(completion)](const HttpResult& result) {
        const auto* response = std::get_if<HttpResponse>(&result);
        if (response == nullptr) return;
        const std::optional<Json> body = json->read(response->body);
        const JsonObject* reply = body ? body->as<JsonObject>() : nullptr;
        if (reply == nullptr) return;
        fillUser(*user, *reply, *text);
        completion(user);
      });
}

}  // namespace kindora
