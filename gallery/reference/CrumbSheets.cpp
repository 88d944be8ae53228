#include "CrumbSheets.h"

#include <BreadCrumbsWidget.h>
#include <ClickableLabel.h>

namespace {

constexpr int barWidth = 400;
constexpr QSize crumbSize(150, 44);

QWidget* makeBar(const QString& path)
{
    auto* bar = new BreadCrumbsWidget;
    bar->setFixedWidth(barWidth);
    bar->setRootPath(QStringLiteral("/data"));
    bar->changeDir(QStringLiteral("/data/") + path);
    return bar;
}

QWidget* makeStyledBar()
{
    QWidget* bar = makeBar(QStringLiteral("music/live"));
    bar->setStyleSheet(QStringLiteral("QLabel { min-height: 44px; font-size: 20px; }"
                                      "#breadcrumb { color: #1a82b4; }"));
    return bar;
}

QWidget* makeDisabledBar()
{
    QWidget* bar = makeBar(QStringLiteral("music/live"));
    bar->setEnabled(false);
    return bar;
}

QWidget* makeLabel(const QString& text)
{
    auto* label = new ClickableLabel;
    label->setText(text);
    label->setFixedSize(crumbSize); // high enough for the whole text
    return label;
}

QWidget* makeDisabledLabel(const QString& text)
{
    QWidget* label = makeLabel(text);
    label->setEnabled(false);
    return label;
}

} // namespace

ClassSheet CrumbSheets::breadCrumbs()
{
    const QString path = QStringLiteral("music/live");
    const QString deepPath = QStringLiteral("music/live/2024/Berlin/encores");
    const QString longName = QStringLiteral("music/A rather long name of a directory");
    return {QStringLiteral("BreadCrumbsWidget"),
            2,
            {
                {tr("Two components below the root"), [path] { return makeBar(path); }},
                {tr("More than three: the others are in a menu"),
                 [deepPath] { return makeBar(deepPath); }},
                {tr("A long name"), [longName] { return makeBar(longName); }},
                {tr("Right to left"), [path] { return makeBar(path); }, ClassState::Light,
                 Qt::RightToLeft},
                {tr("Disabled"), makeDisabledBar},
                {tr("With a style sheet for fingers"), makeStyledBar},
                {tr("Dark palette"), [path] { return makeBar(path); }, ClassState::Dark},
                {tr("Dark palette, with the menu"), [deepPath] { return makeBar(deepPath); },
                 ClassState::Dark},
            }};
}

ClassSheet CrumbSheets::clickableLabel()
{
    const QString text = tr("Music");
    const QString longText = tr("A rather long name of a directory");
    return {QStringLiteral("ClickableLabel"),
            4,
            {
                {tr("A text with room enough"), [text] { return makeLabel(text); }},
                {tr("A text too long"), [longText] { return makeLabel(longText); }},
                {tr("Disabled"), [text] { return makeDisabledLabel(text); }},
                {tr("Dark palette"), [text] { return makeLabel(text); }, ClassState::Dark},
            }};
}
