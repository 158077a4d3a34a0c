// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "effects/scratch/CapsuleSide.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>
#include <numbers>
#include <utility>

#include "effects/scratch/Capsule.h"

namespace kindora {
namespace {

using UnsignedInts = std::uint32_t __attribute__((vector_size(16)));

constexpr Floats kSteps{0, 1, 2, 3};

Floats all(float value) { return Floats{value, value, value, value}; }
Ints truncated(Floats value) { return __builtin_convertvector(value, Ints); }
Floats floats(Ints value) { return __builtin_convertvector(value, Floats); }

// By their sign bits, which is less work than to compare.
Floats positivePart(Floats value) {
  const Ints bits = std::bit_cast<Ints>(value);
  return std::bit_cast<Floats>(bits & ~(bits >> 31));
}
Floats magnitude(Floats value) {
  return std::bit_cast<Floats>(std::bit_cast<Ints>(value) & 0x7fffffff);
}

template <typename Vector, typename Element>
Vector load(const Element* from) {
  Vector vector;
  std::memcpy(&vector, from, sizeof vector);
  return vector;
}

template <typename Vector, typename Element>
void store(Element* to, Vector vector) {
  std::memcpy(to, &vector, sizeof vector);
}

// For values above 0. Newton's method from the usual guess of halving the exponent; the library's
// function takes one number at a time.
Floats squareRoot(Floats value) {
  const Floats half = value * 0.5F;
  const auto nearer = [half](Floats inverse) {
    return inverse * (1.5F - half * inverse * inverse);
  };
  const UnsignedInts guess = 0x5f3759df - (std::bit_cast<UnsignedInts>(value) >> 1);
  return value * nearer(nearer(nearer(std::bit_cast<Floats>(guess))));
}

}  // namespace

CapsuleAxis::CapsuleAxis(SidePoint a, SidePoint b, double capsuleRadius)
    : first(a.along <= b.along ? a : b), last(a.along <= b.along ? b : a), radius(capsuleRadius) {
  const double along = last.along - first.along;
  const double depth = last.depth - first.depth;
  const double length = std::sqrt(along * along + depth * depth);
  direction = length > 0 ? SidePoint{along / length, depth / length} : SidePoint{0, 1};
}

CapsuleSide CapsuleSide::near(const CapsuleAxis& axis, int limit) { return {axis, limit, false}; }

CapsuleSide CapsuleSide::far(const CapsuleAxis& axis, int limit) { return {axis, limit, true}; }

// A far side is a near one in the mirror.
CapsuleSide::CapsuleSide(const CapsuleAxis& axis, int limit, bool far)
    : radius_(static_cast<float>(axis.radius)), limit_(limit), far_(far) {
  const double firstDepth = far ? limit - axis.first.depth : axis.first.depth;
  const double lastDepth = far ? limit - axis.last.depth : axis.last.depth;
  const double along = axis.direction.along;
  const double depth = far ? -axis.direction.depth : axis.direction.depth;
  first_ = {static_cast<float>(axis.first.along), static_cast<float>(firstDepth)};
  last_ = {static_cast<float>(axis.last.along), static_cast<float>(lastDepth)};
  lineStart_ = axis.first.along + axis.radius * depth;
  lineEnd_ = axis.last.along + axis.radius * depth;
  line_ = {static_cast<float>(lineStart_), static_cast<float>(firstDepth - axis.radius * along)};
  slope_ = static_cast<float>(along > 0 ? depth / along : 0);
  constexpr double kDiagonal = std::numbers::sqrt2 / 2;
  const double diagonal = axis.radius * kDiagonal;
  steepStart_ = (depth >= -kDiagonal ? axis.first.along : axis.last.along) - diagonal;
  steepEnd_ = (depth <= kDiagonal ? axis.last.along : axis.first.along) + diagonal;
  leavesRaster_ = std::min(firstDepth, lastDepth) - axis.radius < -1 ||
                  std::max(firstDepth, lastDepth) > limit + 1;
}

void CapsuleSide::depths(int first, int count, float* out) const {
  const int line = wholeWithin(std::ceil(lineStart_) - first, 0, count);
  const int last = wholeWithin(std::ceil(lineEnd_) - first, line, count);
  // Each part overwrites what the one before wrote too much.
  arc(first_, first, 0, line, out);
  for (int i = line; i < last; i += 4) {
    const Floats offset = all(static_cast<float>(first + i) - line_.along) + kSteps;
    store(out + i, line_.depth + offset * slope_);
  }
  arc(last_, first, last, count, out);
  if (!leavesRaster_) return;
  const auto most = static_cast<float>(limit_ + 2);
  for (int i = 0; i < count; ++i) out[i] = std::clamp(out[i], -2.0F, most);
}

void CapsuleSide::arc(Centre centre, int first, int begin, int end, float* out) const {
  // Between two steps the arc lies outside its chord, on average by a twelfth of its second
  // derivative. These sixth and third parts widen the circle by just that, from the pole to the
  // diagonal.
  const float square = radius_ * radius_ + 1.0F / 6;
  const float share = 1 - 1 / (3 * radius_ * radius_);
  for (int i = begin; i < end; i += 4) {
    const Floats offset = all(static_cast<float>(first + i) - centre.along) + kSteps;
    store(out + i, centre.depth - squareRoot(square - share * offset * offset));
  }
}

Crossings::Crossings(const CapsuleSide& side, int first, int count)
    : limit_(side.limit()), far_(side.isFar()), count_(count) {
  side.depths(first, count + 1, depth_.data());
  // Vectors reach beyond the last step: there, too, shall be numbers that can be computed with.
  store(depth_.data() + count + 1, all(depth_[static_cast<std::size_t>(count)]));
}

void Crossings::findWhole() {
  const int beyond = limit_ + 4;
  for (int i = 0; i < count_; i += 4) {
    const auto place = static_cast<std::size_t>(i);
    const auto start = load<Floats>(depth_.data() + place);
    const Floats high = start + positivePart(load<Floats>(depth_.data() + place + 1) - start);
    const Ints fromBeyond = truncated(static_cast<float>(beyond) - high);
    store(whole_.data() + place, far_ ? fromBeyond - 4 : beyond - fromBeyond);
  }
}

void Crossings::findPairs(int begin, int end) {
  for (int i = begin; i < end; i += 4) {
    const auto place = static_cast<std::size_t>(i);
    const auto start = load<Floats>(depth_.data() + place);
    const Floats change = load<Floats>(depth_.data() + place + 1) - start;
    const Floats rise = magnitude(change);
    const Floats low = start - positivePart(-change) + 4;
    const Ints pixel = truncated(low);
    const Floats outside = low - floats(pixel);
    // Areas of the triangles that the side cuts off behind the first and the second pixel.
    const Floats half = 128 / (rise + 1e-4F);
    const Floats pastOne = positivePart(outside + rise - 1);
    const Floats pastTwo = positivePart(outside + rise - 2);
    const Floats inner = pastOne * pastOne * half;
    Ints first = truncated(outside * 256 + (rise * 128 + 0.5F) - inner);
    Ints second = truncated(inner - pastTwo * pastTwo * half + 0.5F);
    if (far_) std::swap(first, second);
    store(pair_.data() + place, far_ ? limit_ + 2 - pixel : pixel - 4);
    first |= first << 16;
    second |= second << 16;
    store(keeps_.data() + 2 * place, __builtin_shufflevector(first, second, 0, 4, 1, 5));
    store(keeps_.data() + 2 * place + 4, __builtin_shufflevector(first, second, 2, 6, 3, 7));
  }
}

}  // namespace kindora
