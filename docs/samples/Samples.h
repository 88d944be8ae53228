#pragma once

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QString;
class QWidget;
QT_END_NAMESPACE

namespace ui {
class LineEdit;
}

/**
 * The code samples of the reference, one per class, and recipes.
 *
 * What lies between the marks "//! [NAME]" of a source is what the page of that name shows, and
 * is compiled and run by the tests. Each function makes its widgets on \a window, which owns them.
 */
namespace samples {

void animationLoop(QWidget* window);
void animator(QWidget* window);
void battery(QWidget* window);
void breadCrumbs(QWidget* window);
void clickableLabel(QWidget* window);
void fileBrowser(QWidget* window);
void fileSystemModel(QWidget* window);
void gridButton(QWidget* window);
void keypadLineEdit(QWidget* window);
void keypadPopup(QWidget* window);
void lineEdit(QWidget* window);
void movingOn(QWidget* window);
void roundedFrame(QWidget* window);
void scrollIndicator(QWidget* window);
void selectionControl(QWidget* window);
void switchControl(QWidget* window);

/// A switch that is on from the start, in the colours of a style sheet.
void styledSwitch(QWidget* window);
/// Gives \a window another style sheet, and its switches the colours of their states in it.
void changeStyleSheet(QWidget* window, const QString& styleSheet);
/// Makes the whole application dark.
void darkTheme();
/// Gives \a name the \a text, and its validator's result on it.
void setTextAndValidate(ui::LineEdit* name, const QString& text);

struct Sample
{
    const char* className;
    void (*run)(QWidget* window);
};

constexpr Sample all[] = {
    {"Animator", animator},
    {"BreadCrumbsWidget", breadCrumbs},
    {"CAnimationFwdRevLoop", animationLoop},
    {"CBatteryStatusWidget", battery},
    {"CGridArrangedButton", gridButton},
    {"CRoundedFrame", roundedFrame},
    {"ClickableLabel", clickableLabel},
    {"FileBrowserWidget", fileBrowser},
    {"FileSystemModel", fileSystemModel},
    {"KeypadLineEdit", keypadLineEdit},
    {"KeypadPopup", keypadPopup},
    {"LineEdit", lineEdit},
    {"ScrollIndicatorBar", scrollIndicator},
    {"SelectionControl", selectionControl},
    {"Switch", switchControl},
};

} // namespace samples
