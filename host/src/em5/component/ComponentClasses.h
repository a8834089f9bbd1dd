#pragma once

namespace em5 {

/// Declares the game's reflected classes and makes them known to the host. Called by every host session.
void declareComponentClasses();

}
