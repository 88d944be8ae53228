#pragma once

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

/**
 * The code samples of the reference, one per class.
 *
 * What lies between the marks "//! [CLASS]" of a source is what the page of that class shows, and
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
void roundedFrame(QWidget* window);
void scrollIndicator(QWidget* window);
void selectionControl(QWidget* window);
void switchControl(QWidget* window);

} // namespace samples
