#pragma once

#include "StateGallery.h"

/// What the picture of every class of the library shows.
namespace stategalleries {

StateGallery animator();
StateGallery battery();
StateGallery breadCrumbs();
StateGallery clickableLabel();
StateGallery fileBrowser();
StateGallery fileSystemModel();
StateGallery gridButton();
StateGallery keypadLineEdit();
StateGallery keypadPopup();
StateGallery lineEdit();
StateGallery loop();
StateGallery roundedFrame();
StateGallery scrollIndicator();
StateGallery selectionControl();
StateGallery switchControl();

/// Each of them, by class name.
QVector<StateGallery> all();

} // namespace stategalleries
