#include "mainwindow/availability.h"

#include "library/identifiers.h"

namespace mainwindow {
namespace {

using Condition = bool (*)(const CommandState&);

bool anyContact(const CommandState& state) {
  return state.count > 0;
}
bool canGoBack(const CommandState& state) {
  return state.count > 1 && state.current > 0;
}
bool canGoOn(const CommandState& state) {
  return state.count > 1 && state.current < state.count - 1;
}

// Commands that are not listed are always available.
constexpr struct {
  int id;
  Condition condition;
} rules[] = {
    {library::id::PRINT, anyContact},   {library::id::PRINTPREVIEW, anyContact},
    {library::id::REMOVE, anyContact},  {library::id::FIRST, canGoBack},
    {library::id::PREVIOUS, canGoBack}, {library::id::NEXT, canGoOn},
    {library::id::LAST, canGoOn},
};

}  // namespace

bool commandAvailable(int id, const CommandState& state) {
  for (const auto& rule : rules)
    if (rule.id == id) return rule.condition(state);
  return true;
}

bool nameBoxAvailable(const CommandState& state) {
  return anyContact(state);
}

}  // namespace mainwindow
