#include "TestApplication.h"

#include <SelectionControl.h>
#include <ui/CGridArrangedButton.h>
#include <ui/CRoundedFrame.h>

#include <memory>
#include <stdexcept>
#include <typeinfo>

namespace {

/// A class of the application, unknown to the library.
class FramedPage : public ui::CRoundedFrame
{
};

class UndecidedControl : public SelectionControl
{
public:
    using SelectionControl::checkStateSet;
    void toggle(Qt::CheckState) override
    {
        throw std::runtime_error("undecided");
    }

protected:
    void paintEvent(QPaintEvent*) override { }
};

} // namespace

/// The library keeps back every symbol that is not its own; types must stay one type all the same.
class tst_LibraryBoundary : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void castsFromTheBaseClass();
    void castsToTheApplicationsClass();
    void namesTheDynamicType();
    void passesExceptionsOn();
};

void tst_LibraryBoundary::castsFromTheBaseClass()
{
    const std::unique_ptr<QObject> button = std::make_unique<ui::CGridArrangedButton>();
    QVERIFY(qobject_cast<ui::CGridArrangedButton*>(button.get()));
    QVERIFY(dynamic_cast<ui::CGridArrangedButton*>(button.get()));
    QVERIFY(!qobject_cast<ui::CRoundedFrame*>(button.get()));
    QVERIFY(!dynamic_cast<ui::CRoundedFrame*>(button.get()));
    QVERIFY(button->inherits("ui::CGridArrangedButton"));
}

void tst_LibraryBoundary::castsToTheApplicationsClass()
{
    const std::unique_ptr<ui::CRoundedFrame> page = std::make_unique<FramedPage>();
    QVERIFY(dynamic_cast<FramedPage*>(page.get()));
    const std::unique_ptr<ui::CRoundedFrame> frame = std::make_unique<ui::CRoundedFrame>();
    QVERIFY(!dynamic_cast<FramedPage*>(frame.get()));
}

void tst_LibraryBoundary::namesTheDynamicType()
{
    const std::unique_ptr<QWidget> frame = std::make_unique<ui::CRoundedFrame>();
    const QWidget& widget = *frame;
    QVERIFY(typeid(widget) == typeid(ui::CRoundedFrame));
    QVERIFY(typeid(widget) != typeid(FramedPage));
}

// The library calls the application's function itself: Qt's own code need not let exceptions
// through.
void tst_LibraryBoundary::passesExceptionsOn()
{
    UndecidedControl control;
    QVERIFY_EXCEPTION_THROWN(control.checkStateSet(), std::runtime_error);
}

const test::Registration<tst_LibraryBoundary> registration;

#include "tst_LibraryBoundary.moc"
