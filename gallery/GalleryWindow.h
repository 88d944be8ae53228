#pragma once

#include "Appearance.h"
#include "pages/Pages.h"

#include <QPointer>
#include <QWidget>

class CodeView;
class DemoWidgetPicker;
class GalleryPage;
class PropertyEditor;
class SignalLog;
class StyleSheetEditor;
class Switch;
class TargetMark;
QT_BEGIN_NAMESPACE
class QBoxLayout;
class QComboBox;
class QListWidget;
class QScrollArea;
class QStackedWidget;
QT_END_NAMESPACE

/**
 * The gallery's window, made for touch screens of 800 x 480 and 480 x 800.
 *
 * Switches are above, the list of pages is at the start, the page in the middle, and beside or
 * below it one of the tools: an editor of its widgets' properties, the code behind them, a log of
 * their signals, and the style sheet. On a screen that is higher than wide the list is a combo box.
 */
class GalleryWindow : public QWidget
{
    Q_OBJECT

public:
    /// Shows the first of \a pages. With a \a styleSheet its switch is on at the start; without one
    /// the switch stands for the example style sheet, and is off.
    explicit GalleryWindow(const QVector<PageEntry>& pages, const QString& styleSheet = QString(),
                           QWidget* parent = nullptr);
    ~GalleryWindow() override;

    /// The page that is shown; null if there is none.
    GalleryPage* page() const;

    /// Shows the page \a id, made anew; nothing happens if there is none of that id.
    void showPage(const QString& id);

    /// As the screens that it is made for.
    QSize sizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QWidget* makeBar();
    QLayout* makeColumns();
    Switch* addSwitch(const QString& text, const QString& name, bool on);
    void addAppearanceSwitch(const QString& text, const QString& name, bool Appearance::*member);
    void setUpPageChoices();
    void setUpTools();
    void makePage(int index);
    void applyAppearance();
    void applyStyleSheet(bool on);
    void chooseTool();
    void updateTool();
    void listen();

    QVector<PageEntry> m_pages;
    QString m_styleSheet;
    Appearance m_appearance;
    QLayout* m_bar = nullptr;
    QComboBox* m_pageChoice;
    QListWidget* m_list;
    QScrollArea* m_pageArea;
    QPointer<GalleryPage> m_page;
    QBoxLayout* m_content = nullptr; ///< The page and the tool.
    Switch* m_styleSheetSwitch = nullptr;
    QComboBox* m_toolChoice;
    QStackedWidget* m_tools;
    PropertyEditor* m_properties;
    CodeView* m_code;
    SignalLog* m_log;
    StyleSheetEditor* m_styleSheetEditor;
    TargetMark* m_mark;
    DemoWidgetPicker* m_picker;
};
