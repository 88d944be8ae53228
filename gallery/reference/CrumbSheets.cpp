#include "CrumbSheets.h"

#include <BreadCrumbsWidget.h>
#include <ClickableLabel.h>

namespace {

const QString shortPath = QStringLiteral("music/live");
constexpr int barWidth = 400;
constexpr QSize crumbSize(150, 44);

void show(BreadCrumbsWidget* bar, const QString& path)
{
    bar->setFixedWidth(barWidth);
    bar->setRootPath(QStringLiteral("/data"));
    bar->changeDir(QStringLiteral("/data/") + path);
}

QWidget* makePlainBar(const QString& path, bool enabled)
{
    auto* bar = new BreadCrumbsWidget;
    show(bar, path);
    bar->setEnabled(enabled);
    return bar;
}

auto plainBar(const QString& path, bool enabled = true)
{
    return [path, enabled] { return makePlainBar(path, enabled); };
}

/// As an application for fingers has it.
BreadCrumbsWidget* makeBar(const QString& path)
{
    auto* bar = new BreadCrumbsWidget;
    bar->setStyleSheet(QStringLiteral("QLabel { min-height: 44px; font-size: 18px; }"
                                      "#breadcrumb { color: #1a82b4; }"));
    show(bar, path);
    return bar;
}

auto bar(const QString& path)
{
    return [path] { return makeBar(path); };
}

QWidget* makeDisabledBar()
{
    QWidget* bar = makeBar(shortPath);
    bar->setStyleSheet(bar->styleSheet()
                       + QStringLiteral("#breadcrumb:disabled { color: #9aa7ae; }"));
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
    const QString deepPath = QStringLiteral("music/live/2024/Berlin/encores");
    const QString longName = QStringLiteral("music/A rather long name of a directory");
    return {QStringLiteral("BreadCrumbsWidget"),
            2,
            {
                {tr("Two components below the root"), bar(shortPath)},
                {tr("More than three: the others are in a menu"), bar(deepPath)},
                {tr("A long name"), bar(longName)},
                {tr("Right to left"), bar(shortPath), ClassState::Light, Qt::RightToLeft},
                {tr("Disabled"), makeDisabledBar},
                {tr("Without a style sheet"), plainBar(shortPath)},
                {tr("Dark palette"), plainBar(deepPath), ClassState::Dark},
                {tr("Dark, disabled"), plainBar(deepPath, false), ClassState::Dark},
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
