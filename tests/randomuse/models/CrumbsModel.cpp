#include "BrowserParts.h"
#include "Models.h"

#include <BreadCrumbsWidget.h>
#include <ClickableLabel.h>

#include <QCoreApplication>
#include <QMouseEvent>
#include <QPushButton>

namespace test {

namespace {

constexpr int maxVisible = 3;

/// Which crumbs a bar must show for a root and a directory that are absolute and clean.
class ExpectedCrumbs
{
public:
    void setRoot(const QString& path);
    void setCurrent(const QString& path);

    QString root() const;
    /// Of all crumbs, the hidden ones first.
    QStringList names() const;
    /// The directories of the crumbs with these names.
    QStringList directories() const;

private:
    QString m_root = QStringLiteral("/");
    QString m_current;
};

void ExpectedCrumbs::setRoot(const QString& path)
{
    m_root = path;
    m_current = path;
}

/// Two slashes at the beginning, as the bar gives below the root of all, are one.
void ExpectedCrumbs::setCurrent(const QString& path)
{
    m_current = path.startsWith(QLatin1String("//")) ? path.mid(1) : path;
}

QString ExpectedCrumbs::root() const
{
    return m_root;
}

QStringList ExpectedCrumbs::names() const
{
    const QString above = m_root == QLatin1String("/") ? m_root : m_root + QLatin1Char('/');
    if (!m_current.startsWith(above))
        return {};
    QString below = m_current.mid(above.size());
    const int dot = below.indexOf(QLatin1Char('.'));
    if (dot >= 0)
        below = below.mid(below.size() - dot);
    return below.split(QLatin1Char('/'), Qt::SkipEmptyParts);
}

QStringList ExpectedCrumbs::directories() const
{
    QStringList result;
    QString path = m_root;
    for (const QString& name : names()) {
        path += QLatin1Char('/') + name;
        result.append(path);
    }
    return result;
}

/// Without those by which Qt remembers what a style sheet has changed.
QList<QByteArray> ownProperties(const QObject& object)
{
    QList<QByteArray> result;
    const auto names = object.dynamicPropertyNames();
    for (const QByteArray& name : names) {
        if (!name.startsWith("_q_"))
            result.append(name);
    }
    return result;
}

/// The crumbs that a bar shows, and the directories that they and its menu report.
class CrumbsModel : public WidgetModel
{
public:
    explicit CrumbsModel(const std::shared_ptr<TestWindows>& windows);

protected:
    QWidget* create() override;
    void checkState() override;

private:
    BreadCrumbsWidget& bar()
    {
        return static_cast<BreadCrumbsWidget&>(*widget());
    }
    QString pathBelow(const QString& root, Values& values) const;
    void setAbsurdPath(Values& values);
    void pressCrumb(Values& values);
    void follow(const QString& path);
    void checkProperties();

    ExpectedCrumbs m_expected;
    bool m_known = true; ///< Whether the model knows what an absurd path has left.
    bool m_deleteOnPick = false;
};

CrumbsModel::CrumbsModel(const std::shared_ptr<TestWindows>& windows)
    : WidgetModel(windows)
{
    add("setRootPath", 2, [this](Values& v) {
        const QString path = v.below(4) == 0 ? QStringLiteral("/") : pathBelow(QString(), v);
        m_known = true;
        m_expected.setRoot(path);
        bar().setRootPath(path);
    });
    add("changeDir", 6, [this](Values& v) {
        const QString root = v.below(4) == 0 ? QString() : m_expected.root();
        const QString path = pathBelow(root == QLatin1String("/") ? QString() : root, v);
        m_expected.setCurrent(path);
        bar().changeDir(path);
    });
    add("setAbsurdPath", 1, [this](Values& v) { setAbsurdPath(v); });
    add("refresh", 1, [this](Values&) { bar().refresh(); });
    add("pressCrumb", 4, [this](Values& v) { pressCrumb(v); });
    add("openMenu", 2, [this](Values&) { moreButton(bar())->click(); });
    add("deleteOnPick", 1, [this](Values& v) { m_deleteOnPick = v.below(4) == 0; });
    addAllCommands(*this);
}

QWidget* CrumbsModel::create()
{
    m_expected = ExpectedCrumbs();
    m_known = true;
    auto* created = new BreadCrumbsWidget;
    QObject::connect(created, &BreadCrumbsWidget::dirChanged, created,
                     [this](const QString& path) { follow(path); });
    return created;
}

QString CrumbsModel::pathBelow(const QString& root, Values& values) const
{
    QString path = root;
    for (int depth = 1 + values.below(6); depth > 0; --depth) {
        path += QLatin1Char('/') + values.name();
        if (values.below(8) == 0)
            path += QStringLiteral(".d");
    }
    return path;
}

void CrumbsModel::setAbsurdPath(Values& values)
{
    const QString path = values.oneOf(
        {QString(), QStringLiteral(".."), QStringLiteral("//"), QStringLiteral("/a/../../b"),
         QStringLiteral("~"), QStringLiteral("a/./b"), QString(5000, QLatin1Char('/')),
         QString(5000, QLatin1Char('n')), values.text(), QStringLiteral(":/icons")});
    m_known = false;
    values.boolean() ? bar().setRootPath(path) : bar().changeDir(path);
}

void CrumbsModel::pressCrumb(Values& values)
{
    const auto labels = crumbLabels(bar());
    if (labels.isEmpty())
        return;
    QWidget* label = labels.at(values.below(labels.size()));
    const QPoint position(1, 1);
    QMouseEvent press(QEvent::MouseButtonPress, position, label->mapToGlobal(position),
                      Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(label, &press);
}

void CrumbsModel::follow(const QString& path)
{
    checkProperties(); // while a press is being reported
    if (m_known)
        expect(m_expected.directories().contains(path),
               QStringLiteral("no crumb leads to ") + path);
    if (m_deleteOnPick) {
        m_deleteOnPick = false;
        bar().deleteLater();
        return;
    }
    m_expected.setCurrent(path);
    bar().changeDir(path);
}

/// Of all crumbs, those that are about to be deleted included.
void CrumbsModel::checkProperties()
{
    const auto labels = bar().findChildren<ClickableLabel*>();
    for (const ClickableLabel* label : labels)
        compare("properties of a crumb", ownProperties(*label), QList<QByteArray>{"directory"});
}

void CrumbsModel::checkState()
{
    checkProperties();
    // A closed menu is there until events are processed, with the paths of its time.
    if (moreButton(bar())->menu())
        processEvents();
    const QStringList shown = crumbs(bar());
    expect(shown.size() <= maxVisible, "three crumbs at most");
    if (!m_known)
        return;
    const int hidden = qMax(0, m_expected.names().size() - maxVisible);
    compare("crumbs", shown, QStringList(m_expected.names().mid(hidden)));
    compare("last directory", lastCrumbPath(bar()),
            m_expected.directories().value(m_expected.directories().size() - 1));
    compare("hidden menu", moreButton(bar())->isHidden(), hidden == 0);
}

} // namespace

std::unique_ptr<WidgetModel> newCrumbsModel(const std::shared_ptr<TestWindows>& windows)
{
    return std::make_unique<CrumbsModel>(windows);
}

} // namespace test
