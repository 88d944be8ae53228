#include "TestApplication.h"

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

class UndecidedButton : public ui::CGridArrangedButton
{
public:
    QSize sizeHint() const override
    {
        throw std::runtime_error("undecided");
    }
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

// The library's minimum size asks the virtual size hint, which here is the application's.
void tst_LibraryBoundary::passesExceptionsOn()
{
    const UndecidedButton button;
    QVERIFY_EXCEPTION_THROWN(static_cast<const QWidget&>(button).minimumSizeHint(),
                             std::runtime_error);
}

int main(int argc, char** argv)
{
    return test::run<tst_LibraryBoundary>(argc, argv);
}

#include "tst_LibraryBoundary.moc"
