// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "tests/layout/Play.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <map>
#include <optional>
#include <ostream>
#include <utility>

namespace kindora::layout {
namespace {

constexpr double kAsGood = 1e-6;     // relative
constexpr double kRounding = 1e-10;  // of the numbers that go into a sum
// Below so many exchanges one more or less says nothing.
constexpr std::uint64_t kFewExchanges = 10;
constexpr std::uint64_t kMostTimesExact = 10;
constexpr std::int64_t kHundred = 100;

// A constraint whose numbers are whole hundredths, so that fractions know them, too.
struct Made {
  std::vector<std::pair<std::size_t, std::int64_t>> terms;  // variable and hundredths, each once
  Relation relation = Relation::equal;
  std::int64_t constant = 0;
  double strength = kRequired;
};

struct Played {
  Made made;
  ConstraintId id;
  std::size_t exact = 0;
};

double inUnits(std::int64_t hundredths) {
  return static_cast<double>(hundredths) / static_cast<double>(kHundred);
}

// Of violations of one strength.
struct Sum {
  double amount = 0;
  double size = 0;  // of the numbers that went into it
};
using Sums = std::map<double, Sum, std::greater<>>;

class Game final {
 public:
  explicit Game(const PlayRules& rules) : rules_(rules), random_(rules.seed) {
    for (std::size_t i = 0; i < rules.variables; ++i) variables_.push_back(solver_.makeVariable());
    if (rules.isExact) exact_.emplace(rules.variables);
  }

  PlayResult run() {
    for (; result_.calls < rules_.calls && result_.isRight(); ++result_.calls) {
      const std::uint64_t before = solver_.exchanges();
      const std::uint64_t exactBefore = exact_ ? exact_->exchanges() : 0;
      call();
      judgeExchanges(solver_.exchanges() - before, exact_ ? exact_->exchanges() - exactBefore : 0);
      judgeValues();
      if (result_.calls % rules_.judgedEach == 0) judgeAgainstAnew();
    }
    return result_;
  }

 private:
  std::size_t below(std::size_t count) { return random_() % count; }
  std::int64_t between(std::int64_t least, std::int64_t most) {
    return least + static_cast<std::int64_t>(below(static_cast<std::size_t>(most - least + 1)));
  }

  void fail(std::uint64_t& counter, const std::string& what) {
    ++counter;
    if (!result_.firstFailure.empty()) return;
    result_.firstFailure =
        what + " at call " + std::to_string(result_.calls) + ", " + nameOf(rules_.family) +
        ", variables " + std::to_string(rules_.variables) + ", held " +
        std::to_string(rules_.mostHeld) + ", seed " + std::to_string(rules_.seed);
  }

  // --- Constraints ---

  std::int64_t coefficient() {
    const std::int64_t sign = below(2) == 0 ? 1 : -1;
    switch (rules_.family) {
      case Family::integers:
        return sign * kHundred * between(1, 3);
      case Family::wide:
        return sign * between(1, 100 * kHundred);
      default:
        return sign * kHundred;
    }
  }

  static void addTerm(Made& made, std::size_t variable, std::int64_t hundredths) {
    for (auto& [known, sum] : made.terms) {
      if (known == variable) {
        sum += hundredths;
        return;
      }
    }
    made.terms.emplace_back(variable, hundredths);
  }

  // An edge, the centre or the size of a view, whose origin and size are neighbours.
  void addPlace(Made& made, std::size_t view, std::size_t place, std::int64_t factor) {
    constexpr std::int64_t kOfSize[] = {0, 50, 100};
    if (place < 3) addTerm(made, 2 * view, factor);
    const std::int64_t share = place < 3 ? kOfSize[place] : 100;
    if (share != 0) addTerm(made, 2 * view + 1, factor * share / 100);
  }

  Made make() {
    Made made;
    made.relation = below(5) < 3    ? Relation::equal
                    : below(2) == 0 ? Relation::lessThanOrEqual
                                    : Relation::greaterThanOrEqual;
    constexpr double kStrengths[] = {kRequired,    kRequired, kRequired, kRequired, kCompression,
                                     kCompression, kHugging,  kHugging,  400,       0};
    made.strength = kStrengths[below(std::size(kStrengths))];
    made.constant = kHundred * between(-20, 20);
    if (rules_.family != Family::views) {
      for (std::size_t i = 2 + below(3); i > 0; --i) {
        addTerm(made, below(rules_.variables), coefficient());
      }
    } else {
      const std::size_t views = rules_.variables / 2;
      made.constant = kHundred * between(0, 300);
      const std::size_t place = below(4);
      addPlace(made, below(views), place, kHundred);
      if (below(3) > 0) {
        const std::int64_t factor = below(4) == 0 ? kHundred / 2 : kHundred;
        addPlace(made, below(views), place == 3 ? 3 : below(3), -factor);
      }
    }
    std::erase_if(made.terms, [](const auto& term) { return term.second == 0; });
    return made;
  }

  [[nodiscard]] static Constraint constraint(const Made& made,
                                             const std::vector<Variable>& variables) {
    Constraint result{{}, made.relation, inUnits(made.constant), made.strength};
    for (const auto& [variable, hundredths] : made.terms) {
      result.terms.push_back({variables[variable], inUnits(hundredths)});
    }
    return result;
  }

  [[nodiscard]] ExactSolver::Sum exactSum(const Made& made) const {
    ExactSolver::Sum sum{std::vector<Rational>(rules_.variables), made.relation,
                         Rational(made.constant, kHundred), made.strength};
    for (const auto& [variable, hundredths] : made.terms) {
      sum.coefficients[variable] = Rational(hundredths, kHundred);
    }
    return sum;
  }

  // --- Calls ---

  void call() {
    const std::size_t kind = below(20);
    if (held_.empty() || (kind < 9 && held_.size() < rules_.mostHeld)) {
      add();
    } else if (kind < 13) {
      remove(below(held_.size()));
    } else {
      setConstant(held_[below(held_.size())]);
    }
  }

  void add() {
    Played added{make(), {}, 0};
    const Solver::Added answer = solver_.add(constraint(added.made, variables_));
    added.id = answer.constraint;
    const bool isIn = answer.outcome == Outcome::done;
    std::optional<std::size_t> name;
    const bool isFollowed = follow([&] { name = exact_->add(exactSum(added.made)); });
    if (name) added.exact = *name;
    if (isFollowed && name.has_value() != isIn) {
      fail(result_.wrongVerdicts, isIn ? "wrongly taken" : "wrongly refused");
    }
    if (isIn) held_.push_back(std::move(added));
    if (!isIn) ++result_.refusals;
  }

  void remove(std::size_t index) {
    if (solver_.remove(held_[index].id) != Outcome::done) fail(result_.wrongVerdicts, "not held");
    follow([&] { exact_->remove(held_[index].exact); });
    held_.erase(held_.begin() + static_cast<std::ptrdiff_t>(index));
  }

  void setConstant(Played& held) {
    const std::int64_t constant =
        kHundred * (rules_.family == Family::views ? between(0, 300) : between(-20, 20));
    const bool isIn = solver_.setConstant(held.id, inUnits(constant)) == Outcome::done;
    bool isPossible = isIn;
    follow([&] { isPossible = exact_->setConstant(held.exact, Rational(constant, kHundred)); });
    if (isPossible != isIn) {
      fail(result_.wrongVerdicts, isIn ? "constant wrongly taken" : "constant wrongly refused");
    }
    if (isIn) held.made.constant = constant;
    if (!isIn) ++result_.refusals;
  }

  // Has the fractions take part, unless they are too large, which ends their part.
  template <typename Step>
  bool follow(const Step& step) {
    if (!exact_) return false;
    try {
      step();
      ++result_.exactCalls;
      return true;
    } catch (const TooLarge&) {
      exact_.reset();
      return false;
    }
  }

  // --- Judging ---

  void judgeExchanges(std::uint64_t taken, std::uint64_t exact) {
    result_.mostExchanges = std::max(result_.mostExchanges, taken);
    // What fractions do not follow is held against the size of the system.
    const std::uint64_t few = exact_ ? kFewExchanges : kFewExchanges + rules_.mostHeld;
    const std::uint64_t measure = std::max(exact, few);
    const double ratio = static_cast<double>(taken) / static_cast<double>(measure);
    result_.worstRatio = std::max(result_.worstRatio, ratio);
    if (taken > kMostTimesExact * measure) {
      fail(result_.runaways, std::to_string(taken) + " exchanges for " + std::to_string(exact));
    }
  }

  // Values and sums of violations of a solver for what is held here.
  Sums sums(Solver& solver, const std::vector<Variable>& variables, bool& isMissed) {
    solver.update();
    Sums result;
    for (const Played& held : held_) {
      double sum = -inUnits(held.made.constant);
      double size = std::max(1.0, std::abs(sum));
      for (const auto& [variable, hundredths] : held.made.terms) {
        const double part = inUnits(hundredths) * solver.value(variables[variable]);
        sum += part;
        size = std::max(size, std::abs(part));
      }
      double violation = std::abs(sum);
      if (held.made.relation == Relation::lessThanOrEqual) violation = std::max(0.0, sum);
      if (held.made.relation == Relation::greaterThanOrEqual) violation = std::max(0.0, -sum);
      if (held.made.strength < kRequired) {
        Sum& all = result[held.made.strength];
        all.amount += violation;
        all.size += size;
      } else if (!(violation <= kAsGood * size)) {
        isMissed = true;
      }
    }
    return result;
  }

  void judgeValues() {
    bool isMissed = false;
    sums_ = sums(solver_, variables_, isMissed);
    if (std::ranges::any_of(variables_, [this](Variable variable) {
          return !std::isfinite(solver_.value(variable));
        })) {
      fail(result_.notNumbers, "not a number");
    }
    if (isMissed) fail(result_.requiredMissed, "a required constraint missed");
    if (!exact_) return;
    try {
      Sums best;
      for (const auto& [strength, amount] : exact_->violations()) best[strength] = {amount, 0};
      compare(best, "the best");
    } catch (const TooLarge&) {
      exact_.reset();
    }
  }

  void judgeAgainstAnew() {
    ++result_.judged;
    Solver anew;
    std::vector<Variable> variables;
    for (std::size_t i = 0; i < rules_.variables; ++i) variables.push_back(anew.makeVariable());
    for (const Played& held : held_) {
      if (anew.add(constraint(held.made, variables)).outcome != Outcome::done) {
        fail(result_.wrongVerdicts, "refused anew");
        return;
      }
    }
    bool isMissed = false;
    const Sums other = sums(anew, variables, isMissed);
    if (isMissed) fail(result_.requiredMissed, "a required constraint missed anew");
    compare(other, "one that starts anew");
  }

  // The first strength at which they differ decides which of both is wrong; both are this solver.
  void compare(const Sums& best, const std::string& whose) {
    for (const auto& [strength, sum] : sums_) {
      const auto place = best.find(strength);
      const Sum least = place == best.end() ? Sum{} : place->second;
      const double tolerance =
          kAsGood * std::max(1.0, least.amount) + kRounding * std::max(sum.size, least.size);
      if (std::abs(sum.amount - least.amount) <= tolerance) continue;
      fail(result_.aboveBest, "strength " + std::to_string(strength) + " violated by " +
                                  std::to_string(sum.amount) + " where " + whose + " has " +
                                  std::to_string(least.amount));
      return;
    }
  }

  PlayRules rules_;
  std::mt19937_64 random_;
  Solver solver_;
  std::vector<Variable> variables_;
  std::vector<Played> held_;
  std::optional<ExactSolver> exact_;
  Sums sums_;
  PlayResult result_;
};

}  // namespace

std::string nameOf(Family family) {
  switch (family) {
    case Family::units:
      return "units";
    case Family::integers:
      return "integers";
    case Family::views:
      return "views";
    default:
      return "wide";
  }
}

PlayResult& PlayResult::operator+=(const PlayResult& other) {
  calls += other.calls;
  refusals += other.refusals;
  judged += other.judged;
  exactCalls += other.exactCalls;
  requiredMissed += other.requiredMissed;
  aboveBest += other.aboveBest;
  notNumbers += other.notNumbers;
  wrongVerdicts += other.wrongVerdicts;
  runaways += other.runaways;
  mostExchanges = std::max(mostExchanges, other.mostExchanges);
  worstRatio = std::max(worstRatio, other.worstRatio);
  if (firstFailure.empty()) firstFailure = other.firstFailure;
  return *this;
}

std::ostream& operator<<(std::ostream& stream, const PlayResult& result) {
  stream << result.calls << " calls, " << result.refusals << " refused, " << result.judged
         << " held against a start anew, " << result.exactCalls
         << " against fractions; required missed " << result.requiredMissed << ", above the best "
         << result.aboveBest << ", not a number " << result.notNumbers << ", wrong verdicts "
         << result.wrongVerdicts << ", runaways " << result.runaways << "; at most "
         << result.mostExchanges << " exchanges, ratio " << result.worstRatio;
  if (!result.isRight()) stream << "\n  first: " << result.firstFailure;
  return stream;
}

PlayResult play(const PlayRules& rules) { return Game(rules).run(); }

}  // namespace kindora::layout
