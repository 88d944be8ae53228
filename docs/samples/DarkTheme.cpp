#include "Samples.h"

#include <QApplication>
#include <QPalette>

void samples::darkTheme()
{
    //! [DarkTheme]
    QPalette dark(QColor(44, 48, 52), QColor(28, 31, 34)); // buttons, windows; white text follows
    dark.setColor(QPalette::Base, QColor(20, 22, 24));
    dark.setColor(QPalette::Highlight, QColor(92, 184, 224));
    dark.setColor(QPalette::HighlightedText, Qt::black);
    QApplication::setPalette(dark);

    // The handle at rest has shades of this role, which would be too near to the window's.
    dark.setColor(QPalette::Button, Qt::white);
    QApplication::setPalette(dark, "ui::widgets::ScrollIndicatorBar");

    // What the palette does not reach: switches, and the purple icons of the file browser.
    qApp->setStyleSheet("Switch {"
                        "  color: white;"
                        "  qproperty-thumbOnBrush: #5cb8e0; qproperty-trackOnBrush: #5cb8e0;"
                        "  qproperty-thumbOffBrush: #b8bec4; qproperty-trackOffBrush: #b8bec4;"
                        "}"
                        "#FileBrowser #toolbarButton { background: #d9d3e0; }");
    //! [DarkTheme]
}
