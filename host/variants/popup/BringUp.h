#pragma once

namespace DisplayAPI {

class Displayable;
class DisplayPrivateIfc;

/// Puts a popup on top of the display that it is attached to, or of the one made last; nothing where there is none, or
/// where the popup is null. GUI thread only.
void bringUp(Displayable* popup, DisplayPrivateIfc* attachedTo);

} // namespace DisplayAPI
