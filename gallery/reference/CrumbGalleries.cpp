#include "StateGalleries.h"

#include <BreadCrumbsWidget.h>
#include <ClickableLabel.h>

#include <QCoreApplication>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(CrumbGalleries)
};

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

StateGallery stategalleries::breadCrumbs()
{
    const QString deepPath = QStringLiteral("music/live/2024/Berlin/encores");
    const QString longName = QStringLiteral("music/A rather long name of a directory");
    return {QStringLiteral("BreadCrumbsWidget"),
            2,
            {
                {Texts::tr("Two components below the root"), bar(shortPath)},
                {Texts::tr("More than three: the others are in a menu"), bar(deepPath)},
                {Texts::tr("A long name"), bar(longName)},
                {Texts::tr("Right to left"), bar(shortPath), ClassState::Light, Qt::RightToLeft},
                {Texts::tr("Disabled"), makeDisabledBar},
                {Texts::tr("Without a style sheet"), plainBar(shortPath)},
                {Texts::tr("Dark palette"), plainBar(deepPath), ClassState::Dark},
                {Texts::tr("Dark, disabled"), plainBar(deepPath, false), ClassState::Dark},
            }};
}

StateGallery stategalleries::clickableLabel()
{
    const QString text = Texts::tr("Music");
    const QString longText = Texts::tr("A rather long name of a directory");
    return {QStringLiteral("ClickableLabel"),
            4,
            {
                {Texts::tr("A text with room enough"), [text] { return makeLabel(text); }},
                {Texts::tr("A text too long"), [longText] { return makeLabel(longText); }},
                {Texts::tr("Disabled"), [text] { return makeDisabledLabel(text); }},
                {Texts::tr("Dark palette"), [text] { return makeLabel(text); }, ClassState::Dark},
            }};
}
