// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/qt/QtPhotoService.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <QThread>
#include <functional>
#include <optional>

#include "platform/fakes/ManualQueue.h"

namespace kindora {
namespace {

class QtPhotoServiceTest : public ::testing::Test {
 protected:
  QtPhotoServiceTest() {
    qputenv("HOME", QFile::encodeName(home.path()));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(home.filePath(QStringLiteral(".config"))));
    QDir(home.path()).mkpath(QStringLiteral("Pictures"));
    QImage image(30, 20, QImage::Format_RGB32);
    image.fill(Qt::red);
    EXPECT_TRUE(image.save(home.filePath(QStringLiteral("Pictures/red.png"))));
  }
  ~QtPhotoServiceTest() override { qputenv("HOME", before); }

  // Gives the main queue its turns until the answer is there.
  template <typename Result>
  Result answerTo(const std::function<void(PhotoService::Reply<Result>)>& ask) {
    std::optional<Result> answer;
    ask([&answer](Result result) {
      EXPECT_FALSE(answer) << "answered twice";
      answer = std::move(result);
    });
    EXPECT_FALSE(answer) << "answered inside the call";
    while (!answer) {
      queue->runPending();
      QThread::yieldCurrentThread();
    }
    return *answer;
  }

  QByteArray before = qgetenv("HOME");
  QTemporaryDir home;
  std::shared_ptr<ManualQueue> queue = std::make_shared<ManualQueue>();
  QtPhotoService service{queue};
};

TEST_F(QtPhotoServiceTest, ListsTheFolderOfPictures) {
  const auto files =
      answerTo<std::vector<PhotoFile>>([&](auto reply) { service.listPhotos(reply); });
  ASSERT_EQ(files.size(), 1U);
  EXPECT_EQ(files[0].name, "red.png");
  EXPECT_FALSE(files[0].isFolder);
}

TEST_F(QtPhotoServiceTest, ListsHomeForAnEmptyPath) {
  const auto files =
      answerTo<std::vector<PhotoFile>>([&](auto reply) { service.listFolder("", reply); });
  ASSERT_EQ(files.size(), 1U);
  EXPECT_EQ(files[0].name, "Pictures");
  EXPECT_TRUE(files[0].isFolder);
  const auto inside = answerTo<std::vector<PhotoFile>>(
      [&](auto reply) { service.listFolder(files[0].path, reply); });
  ASSERT_EQ(inside.size(), 1U);
  EXPECT_EQ(inside[0].name, "red.png");
}

TEST_F(QtPhotoServiceTest, ReadsAPicture) {
  const std::string path = home.filePath(QStringLiteral("Pictures/red.png")).toStdString();
  const auto image = answerTo<UIImageRef>([&](auto reply) { service.readPhoto(path, 15, reply); });
  ASSERT_NE(image, nullptr);
  EXPECT_EQ(image->size(), (CGSize{15, 10}));
  EXPECT_EQ(image->raster().pixel(7, 5), (Rgba8{255, 0, 0, 255}));
}

TEST_F(QtPhotoServiceTest, WhatIsNoPictureIsNull) {
  EXPECT_EQ(answerTo<UIImageRef>(
                [&](auto reply) { service.readPhoto(home.path().toStdString(), 15, reply); }),
            nullptr);
}

}  // namespace
}  // namespace kindora
