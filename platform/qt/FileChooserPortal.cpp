// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/qt/FileChooserPortal.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QUrl>
#include <utility>

namespace kindora {
namespace {

const QString kService = QStringLiteral("org.freedesktop.portal.Desktop");
const QString kPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString kChooser = QStringLiteral("org.freedesktop.portal.FileChooser");
const QString kRequest = QStringLiteral("org.freedesktop.portal.Request");

struct FilterRule {
  uint kind = 1;  // 1: by media type
  QString pattern;
};
struct Filter {
  QString name;
  QList<FilterRule> rules;
};

QDBusArgument& operator<<(QDBusArgument& argument, const FilterRule& rule) {
  argument.beginStructure();
  argument << rule.kind << rule.pattern;
  argument.endStructure();
  return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, FilterRule& rule) {
  argument.beginStructure();
  argument >> rule.kind >> rule.pattern;
  argument.endStructure();
  return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const Filter& filter) {
  argument.beginStructure();
  argument << filter.name << filter.rules;
  argument.endStructure();
  return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, Filter& filter) {
  argument.beginStructure();
  argument >> filter.name >> filter.rules;
  argument.endStructure();
  return argument;
}

QVariant pictureFilters() {
  qDBusRegisterMetaType<FilterRule>();
  qDBusRegisterMetaType<QList<FilterRule>>();
  qDBusRegisterMetaType<Filter>();
  qDBusRegisterMetaType<QList<Filter>>();
  const Filter pictures{QStringLiteral("Pictures"),
                        {{1, QStringLiteral("image/jpeg")}, {1, QStringLiteral("image/png")}}};
  return QVariant::fromValue(QList<Filter>{pictures});
}

}  // namespace

FileChooserPortal::~FileChooserPortal() { abandon(); }

void FileChooserPortal::choose(Reply reply) {
  abandon();
  reply_ = std::move(reply);
  QDBusConnection bus = QDBusConnection::sessionBus();
  // The request's path is known beforehand, so that no answer is missed.
  const QString token = QStringLiteral("kindora%1").arg(++asked_);
  const QString sender = bus.baseService().mid(1).replace(QLatin1Char('.'), QLatin1Char('_'));
  request_ = kPath + QStringLiteral("/request/%1/%2").arg(sender, token);
  bus.connect(kService, request_, kRequest, QStringLiteral("Response"), this,
              SLOT(answered(uint, QVariantMap)));
  QDBusMessage call =
      QDBusMessage::createMethodCall(kService, kPath, kChooser, QStringLiteral("OpenFile"));
  call << QString() << QStringLiteral("Choose a Picture")
       << QVariantMap{{QStringLiteral("handle_token"), token},
                      {QStringLiteral("filters"), pictureFilters()}};
  auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(call), this);
  connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, asked = request_] {
    watcher->deleteLater();
    if (watcher->isError() && asked == request_) finish({.available = false});
  });
}

void FileChooserPortal::answered(uint response, const QVariantMap& results) {
  PhotoChoice choice{.available = true};
  const QStringList addresses = results.value(QStringLiteral("uris")).toStringList();
  if (response == 0 && !addresses.isEmpty()) {
    choice.path = QUrl(addresses.front()).toLocalFile().toStdString();
  }
  finish(choice);
}

void FileChooserPortal::forget() {
  QDBusConnection::sessionBus().disconnect(kService, request_, kRequest, QStringLiteral("Response"),
                                           this, SLOT(answered(uint, QVariantMap)));
  request_.clear();
}

void FileChooserPortal::finish(const PhotoChoice& choice) {
  forget();
  std::exchange(reply_, {})(choice);
}

void FileChooserPortal::abandon() {
  if (request_.isEmpty()) return;
  QDBusConnection::sessionBus().asyncCall(
      QDBusMessage::createMethodCall(kService, request_, kRequest, QStringLiteral("Close")));
  forget();
  reply_ = {};
}

}  // namespace kindora
