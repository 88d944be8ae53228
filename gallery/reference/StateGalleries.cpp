#include "StateGalleries.h"

QVector<StateGallery> stategalleries::all()
{
    return {
        animator(),        breadCrumbs(),      loop(),           battery(),
        gridButton(),      roundedFrame(),     clickableLabel(), fileBrowser(),
        fileSystemModel(), keypadLineEdit(),   keypadPopup(),    lineEdit(),
        scrollIndicator(), selectionControl(), switchControl(),
    };
}
