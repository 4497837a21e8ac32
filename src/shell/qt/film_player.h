#pragma once

namespace tidewell {

/// Says which of the toolkit's backends plays films: the one that needs no further package. To be
/// called before the toolkit's application is made.
void chooseFilmPlayer();

/// Whether that backend can be loaded here. Where it cannot, asking the toolkit for a player ends
/// the process.
bool hasFilmPlayer();

}  // namespace tidewell
