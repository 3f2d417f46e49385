#pragma once

#include <vector>

#include "platform/Form.h"

namespace platform {

class Screen;

/// Elements in reading order: row by row, each from left to right.
using Rows = std::vector<std::vector<Control*>>;
Rows RowsOf(std::vector<Control*> elements);

/// The way of a player without a mouse through the form in front. Tab and arrow keys lead from stop to stop, Space
/// presses the one where he is. Stops are what takes the focus, and what answers a click and has a name. On what takes
/// the focus the focus goes along; on all else it stays, and the form knows nothing of the cursor. It is seen from the
/// first of these keys on, until a letter, Esc, a click or another form in front takes it away.
class Cursor {
public:
    explicit Cursor(const Screen& screen) : screen_(screen) {}

    /// A key for the form in front. True: it has moved the cursor and goes nowhere else.
    bool Take(const Form& form, const Key& key);
    /// The stop that a key presses; null for none.
    [[nodiscard]] const Control* PressedBy(const Key& key) const;
    /// From here on the cursor is nowhere.
    void GiveUp();

    /// The element that is to be marked as the one where the player is, without the focus or a button with it; null
    /// for none.
    [[nodiscard]] const Control* Here() const;

private:
    [[nodiscard]] bool IsStop(const Control& element) const;
    [[nodiscard]] bool TakesArrows(const Form& form) const;
    [[nodiscard]] Control* Start(const Form& form) const;
    [[nodiscard]] std::vector<Control*> Stops(const Form& form) const;
    void Step(const std::vector<Control*>& stops, int by);
    void StepRow(const std::vector<Control*>& stops, int by);
    void Move(const Form& form, const Key& key);
    void GoTo(Control& element);

    const Screen& screen_;
    const Form* form_ = nullptr;  ///< where it is seen; null: nowhere
    Control* here_ = nullptr;     ///< null: where the focus is
};

}  // namespace platform
