// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/PictureFormat.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace kindora {
namespace {

using namespace std::string_literals;

std::span<const std::byte> bytes(const std::string& text) { return std::as_bytes(std::span(text)); }

// A picture with one table, then coded data with a stuffed byte and a restart marker in it.
const std::string kHead = "\xFF\xD8\xFF\xE0\0\x04\x01\x02"s;
const std::string kScan = "\xFF\xDA\0\x03\x01 data \xFF\0 more \xFF\xD0 data"s;
const std::string kEnd = "\xFF\xD9"s;

TEST(PictureFormat, IsToldByTheFirstBytes) {
  EXPECT_EQ(pictureFormat(bytes("\x89PNG\r\n\x1A\n...")), PictureFormat::png);
  EXPECT_EQ(pictureFormat(bytes(kHead)), PictureFormat::jpeg);
}

TEST(PictureFormat, AnythingElseIsNone) {
  for (const std::string& other : {""s, "\xFF\xD8"s, "GIF89a.."s, "<svg xmlns"s, "BM......"s,
                                   "RIFF....WEBP"s, "\x89PNG\n\n\x1A\n"s}) {
    EXPECT_EQ(pictureFormat(bytes(other)), std::nullopt) << other;
  }
}

TEST(IsCompletePicture, AWholePictureIs) {
  EXPECT_TRUE(isCompletePicture(PictureFormat::jpeg, bytes(kHead + kScan + kEnd)));
}

TEST(IsCompletePicture, WhatFollowsTheEndDoesNotMatter) {
  EXPECT_TRUE(isCompletePicture(PictureFormat::jpeg,
                                bytes(kHead + kScan + kEnd + "a film \xFF\xDA follows")));
}

TEST(IsCompletePicture, SeveralScansAreOnePicture) {
  EXPECT_TRUE(isCompletePicture(PictureFormat::jpeg, bytes(kHead + kScan + kScan + kEnd)));
}

TEST(IsCompletePicture, CutAnywhereItIsNot) {
  const std::string whole = kHead + kScan + kEnd;
  for (std::size_t length = 0; length < whole.size(); ++length) {
    EXPECT_FALSE(isCompletePicture(PictureFormat::jpeg, bytes(whole.substr(0, length)))) << length;
  }
}

TEST(IsCompletePicture, TheEndOfAPictureInsideATableIsNotIts) {
  const std::string thumbnail = "\xFF\xE1\0\x06\xFF\xDA\xFF\xD9"s;
  EXPECT_FALSE(isCompletePicture(PictureFormat::jpeg, bytes(kHead + thumbnail + kScan)));
}

TEST(IsCompletePicture, AnEndBeforeAnyScanIsNone) {
  EXPECT_FALSE(isCompletePicture(PictureFormat::jpeg, bytes(kHead + kEnd)));
}

TEST(IsCompletePicture, FillBytesBeforeAMarkerAreSkipped) {
  EXPECT_TRUE(
      isCompletePicture(PictureFormat::jpeg, bytes(kHead + kScan + "\xFF\xFF\xFF"s + kEnd)));
}

TEST(IsCompletePicture, APngFileEndsWithItsLastChunk) {
  const std::string whole = "\x89PNG\r\n\x1A\n\0\0\0\x02IDATxy1234\0\0\0\0IEND1234"s;
  EXPECT_TRUE(isCompletePicture(PictureFormat::png, bytes(whole)));
  EXPECT_TRUE(isCompletePicture(PictureFormat::png, bytes(whole + "and more")));
  for (std::size_t length = 0; length < whole.size(); ++length) {
    EXPECT_FALSE(isCompletePicture(PictureFormat::png, bytes(whole.substr(0, length)))) << length;
  }
}

TEST(IsCompletePicture, AChunkOfPngLongerThanTheFileIsNot) {
  const std::string endless = "\x89PNG\r\n\x1A\n\xFF\xFF\xFF\xFFIDATxy1234\0\0\0\0IEND1234"s;
  EXPECT_FALSE(isCompletePicture(PictureFormat::png, bytes(endless)));
}

}  // namespace
}  // namespace kindora
