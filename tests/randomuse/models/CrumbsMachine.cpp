#include "BrowserParts.h"
#include "CrumbsModel.h"
#include "NewMachines.h"

#include <BreadCrumbsWidget.h>
#include <ClickableLabel.h>

#include <QCoreApplication>
#include <QMouseEvent>
#include <QPushButton>

namespace soak {

namespace {

constexpr int maxVisible = 3;

/// The crumbs that a bar shows, and the directories that they and its menu report.
class CrumbsMachine : public WidgetMachine
{
public:
    explicit CrumbsMachine(const std::shared_ptr<Stage>& stage);

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

    CrumbsModel m_model;
    bool m_known = true; ///< Whether the model knows what an absurd path has left.
    bool m_deleteOnPick = false;
};

CrumbsMachine::CrumbsMachine(const std::shared_ptr<Stage>& stage)
    : WidgetMachine(stage)
{
    add("setRootPath", 2, [this](Values& v) {
        const QString path = v.below(4) == 0 ? QStringLiteral("/") : pathBelow(QString(), v);
        m_known = true;
        m_model.setRoot(path);
        bar().setRootPath(path);
    });
    add("changeDir", 6, [this](Values& v) {
        const QString root = v.below(4) == 0 ? QString() : m_model.root();
        const QString path = pathBelow(root == QLatin1String("/") ? QString() : root, v);
        m_model.setCurrent(path);
        bar().changeDir(path);
    });
    add("setAbsurdPath", 1, [this](Values& v) { setAbsurdPath(v); });
    add("refresh", 1, [this](Values&) { bar().refresh(); });
    add("pressCrumb", 4, [this](Values& v) { pressCrumb(v); });
    add("openMenu", 2, [this](Values&) { test::moreButton(bar())->click(); });
    add("deleteOnPick", 1, [this](Values& v) { m_deleteOnPick = v.below(4) == 0; });
    addAllUses(*this);
}

QWidget* CrumbsMachine::create()
{
    m_model = CrumbsModel();
    m_known = true;
    auto* created = new BreadCrumbsWidget;
    QObject::connect(created, &BreadCrumbsWidget::dirChanged, created,
                     [this](const QString& path) { follow(path); });
    return created;
}

QString CrumbsMachine::pathBelow(const QString& root, Values& values) const
{
    QString path = root;
    for (int depth = 1 + values.below(6); depth > 0; --depth) {
        path += QLatin1Char('/') + values.name();
        if (values.below(8) == 0)
            path += QStringLiteral(".d");
    }
    return path;
}

void CrumbsMachine::setAbsurdPath(Values& values)
{
    const QString path = values.oneOf(
        {QString(), QStringLiteral(".."), QStringLiteral("//"), QStringLiteral("/a/../../b"),
         QStringLiteral("~"), QStringLiteral("a/./b"), QString(5000, QLatin1Char('/')),
         QString(5000, QLatin1Char('n')), values.text(), QStringLiteral(":/icons")});
    m_known = false;
    values.boolean() ? bar().setRootPath(path) : bar().changeDir(path);
}

void CrumbsMachine::pressCrumb(Values& values)
{
    const auto labels = test::crumbLabels(bar());
    if (labels.isEmpty())
        return;
    QMouseEvent press(QEvent::MouseButtonPress, QPointF(1, 1), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(labels.at(values.below(labels.size())), &press);
}

void CrumbsMachine::follow(const QString& path)
{
    if (m_known)
        expect(m_model.directories().contains(path), QStringLiteral("no crumb leads to ") + path);
    if (m_deleteOnPick) {
        m_deleteOnPick = false;
        bar().deleteLater();
        return;
    }
    m_model.setCurrent(path);
    bar().changeDir(path);
}

void CrumbsMachine::checkState()
{
    // A closed menu is there until the next turn, with the paths of its time.
    if (test::moreButton(bar())->menu())
        turnEventLoop();
    const QStringList shown = test::crumbs(bar());
    expect(shown.size() <= maxVisible, "three crumbs at most");
    if (!m_known)
        return;
    const int hidden = qMax(0, m_model.names().size() - maxVisible);
    compare("crumbs", shown, QStringList(m_model.names().mid(hidden)));
    compare("last directory", test::lastCrumbPath(bar()),
            m_model.directories().value(m_model.directories().size() - 1));
    compare("hidden menu", test::moreButton(bar())->isHidden(), hidden == 0);
}

} // namespace

std::unique_ptr<WidgetMachine> newCrumbsMachine(const std::shared_ptr<Stage>& stage)
{
    return std::make_unique<CrumbsMachine>(stage);
}

} // namespace soak
