#pragma once

/// Has who cannot see the window hear what the toolkit tells otherwise: lists (ListComboBox) go by their own names,
/// with what is chosen as their descriptions (on X11 the toolkit has the choice for a name, by which no list is found),
/// and message boxes have their texts as descriptions. Made before the first widget; what it does stays until the
/// process ends, and is done once however many there are.
struct Spoken {
    Spoken();
};
