// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/legacy/VisualFormat.h"

#include <charconv>
#include <cmath>
#include <utility>

namespace kindora {
namespace {

using Constraints = std::vector<VisualFormatConstraint>;

// ASCII alone, whatever the locale.
bool isDigit(char ch) { return ch >= '0' && ch <= '9'; }
bool startsName(char ch) {
  return (ch >= 'a' && ch <= 'z') || (ch >= 'A' && ch <= 'Z') || ch == '_';
}

// The four attributes of one direction.
struct Axis {
  NSLayoutAttribute start = NSLayoutAttribute::left;
  NSLayoutAttribute end = NSLayoutAttribute::right;
  NSLayoutAttribute size = NSLayoutAttribute::width;
};

// One condition on a gap or a size.
struct Predicate {
  NSLayoutRelation relation = NSLayoutRelation::equal;
  double value = 0;
  std::optional<std::string> view;  // in place of the value
  double priority = kLayoutPriorityRequired;
};

// One edge from which, or to which, a gap is measured.
struct Edge {
  std::string item;
  NSLayoutAttribute attribute = NSLayoutAttribute::notAnAttribute;
};

// Reads from left to right and never goes back. Each function answers false at the first mistake.
class Parser {
 public:
  Parser(std::string_view format, const VisualFormatMetrics& metrics)
      : format_(format), metrics_(metrics) {}

  std::variant<Constraints, VisualFormatError> parse() {
    if (!readFormat()) return std::move(error_);
    return std::move(constraints_);
  }

 private:
  [[nodiscard]] char peek() const { return position_ < format_.size() ? format_[position_] : '\0'; }

  bool skip(std::string_view text) {
    if (format_.substr(position_, text.size()) != text) return false;
    position_ += text.size();
    return true;
  }

  bool fail(std::size_t position, std::string_view expected) {
    error_ = {position, std::string(expected)};
    return false;
  }

  bool readFormat() {
    if (skip("V:")) {
      axis_ = {NSLayoutAttribute::top, NSLayoutAttribute::bottom, NSLayoutAttribute::height};
    } else {
      skip("H:");
    }
    std::optional<Edge> before;
    std::vector<Predicate> gap;
    if (skip(kSuperviewName)) {
      before = Edge{std::string(kSuperviewName), axis_.start};
      if (!readGap(gap)) return false;
    }
    if (peek() != '[') return fail(position_, before ? "a gap or a view" : "an edge or a view");
    while (peek() == '[') {
      if (!readView(before, gap) || !readGap(gap)) return false;
    }
    if (skip(kSuperviewName)) {
      addGap({std::string(kSuperviewName), axis_.end}, *before, gap);
      return position_ == format_.size() || fail(position_, "the end");
    }
    if (gapWritten_) return fail(position_, "a view or an edge");
    return position_ == format_.size() || fail(position_, "a gap, a view, an edge or the end");
  }

  // What stands between two neighbours; nothing at all means that they touch.
  bool readGap(std::vector<Predicate>& gap) {
    gap = {Predicate{}};
    gapWritten_ = skip("-");
    if (!gapWritten_) return true;
    if (peek() == '[' || peek() == '|') {
      gap.front().value = kDefaultGap;
      return true;
    }
    if (peek() == '(') {
      gap.clear();
      if (!readPredicates(gap, false)) return false;
    } else if (!isDigit(peek()) && !startsName(peek())) {
      return fail(position_, "a number, a metric, a view or an edge");
    } else if (!readValue(gap.front(), false)) {
      return false;
    }
    return skip("-") || fail(position_, "\"-\"");
  }

  bool readView(std::optional<Edge>& before, const std::vector<Predicate>& gap) {
    skip("[");
    std::string name;
    if (!readName(name)) return fail(position_, "a view's name");
    if (before) addGap({name, axis_.start}, *before, gap);
    std::vector<Predicate> sizes;
    if (peek() == '(' && !readPredicates(sizes, true)) return false;
    for (Predicate& size : sizes) {
      const auto attribute = size.view ? axis_.size : NSLayoutAttribute::notAnAttribute;
      constraints_.push_back({name, axis_.size, size.relation, std::move(size.view), attribute,
                              size.value, size.priority});
    }
    before = Edge{std::move(name), axis_.end};
    return skip("]") || fail(position_, sizes.empty() ? "\"(\" or \"]\"" : "\"]\"");
  }

  // "(" condition, condition ... ")"
  bool readPredicates(std::vector<Predicate>& predicates, bool mayNameView) {
    skip("(");
    do {
      Predicate& predicate = predicates.emplace_back();
      if (skip(">=")) {
        predicate.relation = NSLayoutRelation::greaterThanOrEqual;
      } else if (skip("<=")) {
        predicate.relation = NSLayoutRelation::lessThanOrEqual;
      } else {
        skip("==");
      }
      if (!readValue(predicate, mayNameView) || !readPriority(predicate)) return false;
    } while (skip(","));
    return skip(")") || fail(position_, "\",\" or \")\"");
  }

  bool readPriority(Predicate& predicate) {
    if (!skip("@")) return true;
    const std::size_t start = position_;
    Predicate read;
    if (!readValue(read, false)) return false;
    if (!(read.value >= 0 && read.value <= kLayoutPriorityRequired)) {
      return fail(start, "a priority from 0 to 1000");
    }
    predicate.priority = read.value;
    return true;
  }

  bool readValue(Predicate& predicate, bool mayNameView) {
    const std::size_t start = position_;
    std::string name;
    if (!readName(name)) {
      return readNumber(predicate.value) ||
             fail(start, mayNameView ? "a number, a metric or a view" : "a number or a metric");
    }
    const auto metric = metrics_.find(name);
    if (metric != metrics_.end()) {
      predicate.value = metric->second;
      return std::isfinite(predicate.value) || fail(start, "a finite metric");
    }
    if (!mayNameView) return fail(start, "a metric");
    predicate.view = std::move(name);
    return true;
  }

  bool readName(std::string& name) {
    if (!startsName(peek())) return false;
    const std::size_t start = position_;
    while (startsName(peek()) || isDigit(peek())) ++position_;
    name = format_.substr(start, position_ - start);
    return true;
  }

  bool readNumber(double& number) {
    const char* const end = format_.data() + format_.size();
    const char* const start = format_.data() + position_;
    const char* const digits = start + (peek() == '-' ? 1 : 0);
    // from_chars knows names for numbers that are none.
    if (digits == end || (!isDigit(*digits) && *digits != '.')) return false;
    const auto [stop, problem] = std::from_chars(start, end, number, std::chars_format::fixed);
    if (problem != std::errc{}) return false;
    position_ = static_cast<std::size_t>(stop - format_.data());
    return true;
  }

  void addGap(const Edge& after, const Edge& before, const std::vector<Predicate>& gap) {
    for (const Predicate& predicate : gap) {
      constraints_.push_back({after.item, after.attribute, predicate.relation, before.item,
                              before.attribute, predicate.value, predicate.priority});
    }
  }

  std::string_view format_;
  const VisualFormatMetrics& metrics_;
  std::size_t position_ = 0;
  Axis axis_;
  bool gapWritten_ = false;  // the gap read last was more than nothing
  Constraints constraints_;
  VisualFormatError error_;
};

}  // namespace

std::variant<Constraints, VisualFormatError> parseVisualFormat(std::string_view format,
                                                               const VisualFormatMetrics& metrics) {
  return Parser(format, metrics).parse();
}

}  // namespace kindora
