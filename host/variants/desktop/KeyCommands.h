#pragma once

namespace DisplayAPI {

class MenuCommand;

/// What a key raises on a desktop: see Desktop::KeyCommand. Null for a key that raises nothing. Never deleted. GUI
/// thread only.
MenuCommand* keyCommand(int key);

/// What the end of the screensaver raises. Never deleted. GUI thread only.
MenuCommand* wakeCommand();

} // namespace DisplayAPI
