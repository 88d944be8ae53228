#include "BreadCrumbsWidget.h"

#include "ClickableLabel.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QVariant>

namespace {

constexpr int maxVisibleCrumbs = 3;
constexpr int maxCrumbWidth = 150; // pixels
constexpr int minMoreButtonWidth = 50; // pixels; wide enough for a finger
constexpr int sideMargin = 5; // pixels

constexpr char directoryProperty[] = "directory";

/// A crumb whose press is being reported. Reports nest, as a slot may run an event loop.
class Report
{
public:
    explicit Report(const QWidget* crumb)
        : m_crumb(crumb)
        , m_outer(innermost)
    {
        innermost = this;
    }

    ~Report()
    {
        innermost = m_outer;
    }

    Q_DISABLE_COPY(Report)

    static bool isUnderWay(const QWidget& crumb)
    {
        const Report* report = innermost;
        while (report && report->m_crumb != &crumb)
            report = report->m_outer;
        return report;
    }

private:
    inline static const Report* innermost = nullptr;

    const QPointer<const QWidget> m_crumb;
    const Report* const m_outer;
};

/**
 * Qt sends the widget on which the right button goes down a context menu event after the press. If
 * the press of a crumb leads to its deletion, the crumb must wait for that.
 */
bool awaitsContextMenuEvent(const QWidget& widget)
{
    return (QGuiApplication::mouseButtons() & Qt::RightButton) && Report::isUnderWay(widget);
}

/// Hides \a widget from user and program at once; Qt deletes it as soon as it has done with it.
void retire(QWidget& widget)
{
    // mutant [order]: No event comes between the two.
    widget.hide();
    widget.setContextMenuPolicy(Qt::PreventContextMenu);
    // mutant [order]: deleteLater() only asks for the deletion.
    widget.setObjectName(QString());
    widget.deleteLater();
}

/// Deletes the items of \a layout, with their widgets, from \a first on.
void clearLayout(QLayout& layout, int first)
{
    while (QLayoutItem* item = layout.takeAt(first)) {
        QWidget* widget = item->widget();
        if (widget && awaitsContextMenuEvent(*widget))
            retire(*widget);
        else
            delete widget;
        delete item;
    }
}

/// The components of \a dir below \a root, of a relative path cut at its first dot.
QStringList crumbsBelow(const QDir& root, const QDir& dir)
{
    QString relative = root.relativeFilePath(dir.path());
    // Empties the path of the root itself (".") and of all that lies outside ("../…"). A dot
    // further on keeps as many characters of the end as stand before it, which is wanted, odd as it
    // looks.
    relative = relative.right(relative.indexOf(QLatin1Char('.')));
    return QDir::toNativeSeparators(relative).split(QDir::separator(), Qt::SkipEmptyParts);
}

QDir childDir(const QDir& dir, const QString& name)
{
    return QDir(dir.path() + QLatin1Char('/') + name);
}

} // namespace

BreadCrumbsWidget::BreadCrumbsWidget(QWidget* parent)
    : QWidget(parent)
    , m_rootDir(QStringLiteral("/"))
    , m_currentDir(QString())
    , m_maxVisibleCrumbs(maxVisibleCrumbs)
{
    m_layout = std::make_unique<QHBoxLayout>(this);
    m_moreButton = std::make_unique<QPushButton>(QStringLiteral("..."), this);
    m_moreButton->setMinimumWidth(minMoreButtonWidth);
    connect(m_moreButton.get(), &QPushButton::clicked, this, &BreadCrumbsWidget::showHiddenCrumbs);
    // mutant [order]: The layout does not show what has been hidden.
    m_layout->addWidget(m_moreButton.get());
    // mutant [order]: The margins do not depend on the button.
    m_moreButton->hide();
    m_layout->setContentsMargins(sideMargin, 0, sideMargin, 0);
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum);
}

BreadCrumbsWidget::~BreadCrumbsWidget() = default;

// NOLINTNEXTLINE(performance-unnecessary-value-param): by value in the public interface
void BreadCrumbsWidget::setRootPath(QString path)
{
    // mutant [order]: Neither depends on the other.
    m_rootDir = QDir(path);
    m_currentDir = QDir(path);
    refresh();
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): by value in the public interface
void BreadCrumbsWidget::changeDir(QString path)
{
    m_currentDir = QDir(path);
    refresh();
}

void BreadCrumbsWidget::refresh()
{
    // mutant [order]: The old row does not depend on the new crumbs.
    clearLayout(*m_layout, 1); // item 0 is the "..." button
    m_crumbs = crumbsBelow(m_rootDir, m_currentDir);
    m_moreButton->setVisible(m_maxVisibleCrumbs < m_crumbs.size());

    // mutant [0 -> (-1)]: Counts crumbs that are not there, of which none is shown.
    const int hidden = qMax(0, m_crumbs.size() - m_maxVisibleCrumbs);
    QDir dir = m_rootDir;
    for (int i = 0; i < m_crumbs.size(); ++i) {
        dir = childDir(dir, m_crumbs.at(i));
        if (i >= hidden)
            addCrumb(m_crumbs.at(i), dir.path());
    }
    m_layout->addStretch(1);
}

void BreadCrumbsWidget::addCrumb(const QString& crumb, const QString& path)
{
    m_layout->addWidget(new QLabel(QStringLiteral("/"), this));

    auto* label = new ClickableLabel(this);
    label->setText(crumb);
    label->setTextFormat(Qt::RichText);
    label->setTextInteractionFlags(Qt::TextBrowserInteraction);
    label->setOpenExternalLinks(true);
    label->setObjectName(QStringLiteral("breadcrumb"));
    label->setMaximumWidth(maxCrumbWidth);
    label->setProperty(directoryProperty, path);
    connect(label, &ClickableLabel::clicked, this, [this, label] { report(label); });
    m_layout->addWidget(label);
}

void BreadCrumbsWidget::report(ClickableLabel* label)
{
    const Report report(label);
    Q_EMIT dirChanged(label->property(directoryProperty).toString()); // may delete bar and label
}

void BreadCrumbsWidget::showHiddenCrumbs()
{
    auto* menu = new QMenu(this);
    connect(menu, &QMenu::aboutToHide, menu, &QObject::deleteLater);
    QString path = m_rootDir.path();
    for (int i = 0; i < m_crumbs.size() - m_maxVisibleCrumbs; ++i) {
        path += QDir::separator();
        path += m_crumbs.at(i);
        connect(menu->addAction(m_crumbs.at(i)), &QAction::triggered, this,
                [this, path] { Q_EMIT dirChanged(path); });
    }
    m_moreButton->setMenu(menu);
    m_moreButton->showMenu(); // returns when the menu is closed, and perhaps the bar is gone
}
