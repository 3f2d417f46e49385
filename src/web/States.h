#pragma once

#include <string>

#include "platform/Form.h"
#include "platform/Wishes.h"

/// The states of windows and elements as the page takes them, each one object in JSON. Equal states give equal texts.
namespace platform::web {

/// The frame of a form: its caption, its size, its ground.
std::string StateOf(const Form& form);

/// An element as a player with these wishes is to see it: its kind and name, its place, its look, whether it answers
/// clicks, its place in the order of the focus. Lengths are twips, those of letters too. Of a hidden one only that it
/// is hidden, for most are and all are told. `isMarked`: a mark tells what its blinking would have told.
std::string StateOf(const Control& control, const Wishes& wishes, bool isMarked);

/// A menu of the bar or an entry of one.
std::string StateOf(const Menu& menu);

/// Whether the player can ever see an element: not one that lies behind others for its key alone.
bool IsSeen(const Control& control);

}  // namespace platform::web
