#include "AllClassSheets.h"

#include "AnimationSheets.h"
#include "BatterySheet.h"
#include "ContainerSheets.h"
#include "CrumbSheets.h"
#include "FileSheets.h"
#include "ScrollIndicatorSheet.h"
#include "TextSheets.h"
#include "ToggleSheets.h"

QVector<ClassSheet> allClassSheets()
{
    return {
        AnimationSheets::animator(),   CrumbSheets::breadCrumbs(),
        AnimationSheets::loop(),       BatterySheet::sheet(),
        ContainerSheets::gridButton(), ContainerSheets::roundedFrame(),
        CrumbSheets::clickableLabel(), FileSheets::fileBrowser(),
        FileSheets::fileSystemModel(), TextSheets::keypadLineEdit(),
        TextSheets::keypadPopup(),     TextSheets::lineEdit(),
        ScrollIndicatorSheet::sheet(), ToggleSheets::selectionControl(),
        ToggleSheets::switchControl(),
    };
}
