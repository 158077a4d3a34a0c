// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/qt/HttpTask.h"

#include <QNetworkRequest>
#include <QUrl>
#include <QVariant>
#include <utility>

namespace kindora {
namespace {

constexpr qint64 kLargestBody = qint64{1024} * 1024;

QNetworkRequest networkRequest(const QUrl& url, const HttpRequest& request) {
  QNetworkRequest result(url);
  result.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
  result.setAttribute(QNetworkRequest::CacheSaveControlAttribute, false);
  result.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
  result.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
  result.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
  for (const auto& [name, value] : request.headers) {
    result.setRawHeader(QByteArray::fromStdString(name), QByteArray::fromStdString(value));
  }
  return result;
}

// Qt reports a status code of 400 or more as an error of one of these kinds. A broken body of any
// other reply can be of the same kinds.
bool isStatusError(QNetworkReply::NetworkError error) {
  return error == QNetworkReply::ProxyAuthenticationRequiredError ||
         (error >= QNetworkReply::ContentAccessDenied &&
          error <= QNetworkReply::UnknownContentError) ||
         error == QNetworkReply::ProtocolInvalidOperationError ||
         (error >= QNetworkReply::InternalServerError &&
          error <= QNetworkReply::UnknownServerError);
}

}  // namespace

void HttpTask::start(QNetworkAccessManager& manager, const HttpRequest& request,
                     std::chrono::milliseconds timeout, HttpSession::Completion completion) {
  const QUrl url(QString::fromStdString(request.url.absoluteString()), QUrl::StrictMode);
  // Qt would also read files and resources for addresses of other schemes.
  if (url.host().isEmpty() ||
      (url.scheme() != QLatin1String("http") && url.scheme() != QLatin1String("https"))) {
    completion(HttpError{"unsupported URL"});
    return;
  }
  const QNetworkRequest made = networkRequest(url, request);
  QNetworkReply* reply =
      request.method == "GET" && request.body.empty()
          ? manager.get(made)
          : manager.sendCustomRequest(made, QByteArray::fromStdString(request.method),
                                      QByteArray::fromStdString(request.body));
  auto* task = new HttpTask(reply, std::move(completion));
  task->deadline_.start(timeout);
}

HttpTask::HttpTask(QNetworkReply* reply, HttpSession::Completion completion)
    : QObject(reply), reply_(reply), completion_(std::move(completion)) {
  deadline_.setSingleShot(true);
  connect(&deadline_, &QTimer::timeout, this, [this] { refuse("The request timed out."); });
  connect(reply_, &QNetworkReply::metaDataChanged, this, [this] { readHeaders(); });
  connect(reply_, &QNetworkReply::readyRead, this, [this] { readBody(); });
  connect(reply_, &QNetworkReply::finished, this, [this] { finish(); });
}

void HttpTask::readHeaders() {
  const qint64 length = reply_->header(QNetworkRequest::ContentLengthHeader).toLongLong();
  if (length > kLargestBody) refuse("The reply is too large.");
}

void HttpTask::readBody() {
  body_ += reply_->read(kLargestBody + 1 - body_.size());
  if (body_.size() > kLargestBody) refuse("The reply is too large.");
}

void HttpTask::refuse(std::string reason) {
  if (refusal_ || reply_->isFinished()) return;
  refusal_ = std::move(reason);
  reply_->abort();
}

void HttpTask::finish() {
  if (!completion_) return;
  deadline_.stop();
  if (!refusal_) readBody();
  const HttpSession::Completion completion = std::exchange(completion_, nullptr);
  completion(result());
  reply_->deleteLater();
}

HttpResult HttpTask::result() const {
  if (refusal_) return HttpError{*refusal_};
  const QNetworkReply::NetworkError error = reply_->error();
  // 0 when there was no reply at all.
  const int status = reply_->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
  const bool answered = error == QNetworkReply::NoError || (status >= 400 && isStatusError(error));
  if (status == 0 || !answered) return HttpError{reply_->errorString().toStdString()};
  return HttpResponse{status, body_.toStdString()};
}

}  // namespace kindora
