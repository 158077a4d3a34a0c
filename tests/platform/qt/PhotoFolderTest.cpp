// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/qt/PhotoFolder.h"

#include <gtest/gtest.h>

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace kindora {
namespace {

using Names = std::vector<std::string>;

class PhotoFolderTest : public ::testing::Test {
 protected:
  // A file that begins like a picture, as old as that many hours.
  void make(const QString& name, int hours, const QByteArray& bytes = "\xFF\xD8\xFF\xE0") {
    const QFileInfo info(folder.filePath(name));
    QDir().mkpath(info.path());
    QFile file(info.filePath());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    file.flush();  // it would set the time anew
    ASSERT_TRUE(file.setFileTime(QDateTime::fromSecsSinceEpoch(1'000'000 - 3600LL * hours),
                                 QFileDevice::FileModificationTime));
  }
  static Names names(const std::vector<PhotoFile>& files) {
    Names result;
    for (const auto& file : files) result.push_back(file.name + (file.isFolder ? "/" : ""));
    return result;
  }

  QTemporaryDir folder;
};

TEST_F(PhotoFolderTest, ListsTheNewestFirst) {
  make("old.jpg", 9);
  make("new.jpg", 1);
  make("middle.png", 5, "\x89PNG\r\n\x1A\n");
  EXPECT_EQ(names(photosBelow(folder.path())), (Names{"new.jpg", "middle.png", "old.jpg"}));
}

TEST_F(PhotoFolderTest, ListsThoseOfTheSameTimeByName) {
  make("b.jpg", 1);
  make("a.jpg", 1);
  EXPECT_EQ(names(photosBelow(folder.path())), (Names{"a.jpg", "b.jpg"}));
}

TEST_F(PhotoFolderTest, LooksIntoFolders) {
  make("Camera/2026/deep.jpg", 1);
  make("top.jpg", 2);
  EXPECT_EQ(names(photosBelow(folder.path())), (Names{"deep.jpg", "top.jpg"}));
}

TEST_F(PhotoFolderTest, ToldByContentAndNotByName) {
  make("notes.jpg", 1, "Dear diary");
  make("picture.txt", 2);
  EXPECT_EQ(names(photosBelow(folder.path())), (Names{"picture.txt"}));
}

TEST_F(PhotoFolderTest, LeavesHiddenOnesOut) {
  make(".hidden.jpg", 1);
  make(".thumbnails/small.jpg", 1);
  EXPECT_TRUE(photosBelow(folder.path()).empty());
}

TEST_F(PhotoFolderTest, ALinkToAFolderLeadsInNoCircle) {
  make("inner/a.jpg", 1);
  ASSERT_TRUE(QFile::link(folder.path(), folder.filePath("inner/round")));
  EXPECT_EQ(names(photosBelow(folder.path())), (Names{"a.jpg"}));
}

TEST_F(PhotoFolderTest, AMissingFolderIsEmpty) {
  EXPECT_TRUE(photosBelow(folder.filePath("missing")).empty());
  EXPECT_TRUE(foldersAndPhotosIn(folder.filePath("missing")).empty());
}

TEST_F(PhotoFolderTest, AFolderShowsItsFoldersByNameAndThenItsPictures) {
  make("z.jpg", 1);
  make("a.jpg", 2);
  make("Work/w.jpg", 3);
  make("art/x.jpg", 3);
  make("notes.txt", 1, "words");
  EXPECT_EQ(names(foldersAndPhotosIn(folder.path())), (Names{"art/", "Work/", "z.jpg", "a.jpg"}));
}

}  // namespace
}  // namespace kindora
