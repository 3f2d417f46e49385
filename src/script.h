#pragma once

#include "headless/Player.h"

/// The program that plays the game from a text, on whatever platform: options, answers and exit status.
///
///     script [--folder DIR | --new-folder DIR] [FILE]
///
/// Exit status: 0, 1 if an expectation failed, 2 for what cannot be read.
int PlayScript(int argc, char** argv, platform::headless::Headless& platform, platform::headless::Means means);
