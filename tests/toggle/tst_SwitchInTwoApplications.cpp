#include "Painting.h"
#include "Switch.h"
#include "SwitchPicture.h"
#include "TestApplication.h"

#include <QPainter>

#include <memory>

namespace {

const QSize size(60, 44);

void dress(Switch& control)
{
    control.setHeight(40);
    control.setThumbOffBrush(QColor(50, 150, 250));
    control.setTrackOffBrush(QColor(200, 50, 100));
    control.resize(size);
}

test::SwitchPicture dressed(bool shadow)
{
    test::SwitchPicture picture;
    picture.size = size;
    picture.track = QRect(8, 10, 40, 20);
    picture.trackColor = QColor(200, 50, 100, 64);
    picture.thumbOffset = -9;
    picture.thumbColor = QColor(50, 150, 250);
    picture.shadow = shadow;
    return picture;
}

} // namespace

/// The shadow is made once in a process; here each function has an application object of its own.
class tst_SwitchInTwoApplications : public QObject
{
    Q_OBJECT

public:
    tst_SwitchInTwoApplications(int& argc, char** argv);

private Q_SLOTS:
    void init();
    void cleanup();

    void shadow_data();
    void shadow();

private:
    int& m_argc;
    char** m_argv;
    std::unique_ptr<QApplication> m_application;
};

tst_SwitchInTwoApplications::tst_SwitchInTwoApplications(int& argc, char** argv)
    : m_argc(argc)
    , m_argv(argv)
{
}

void tst_SwitchInTwoApplications::init()
{
    test::prepareApplication();
    m_application = std::make_unique<QApplication>(m_argc, m_argv);
    test::setUpApplication();
}

void tst_SwitchInTwoApplications::cleanup()
{
    m_application.reset();
}

void tst_SwitchInTwoApplications::shadow_data()
{
    QTest::addColumn<qreal>("ratio");
    QTest::addColumn<QImage::Format>("format");
    for (const qreal ratio : {1.0, 1.25, 1.5, 2.0}) {
        QTest::addRow("32 bits @%g", ratio) << ratio << QImage::Format_RGB32;
        QTest::addRow("32 bits with alpha @%g", ratio)
            << ratio << QImage::Format_ARGB32_Premultiplied;
        QTest::addRow("16 bits @%g", ratio) << ratio << QImage::Format_RGB16;
    }
}

/// Not before the first resize, whatever other switches have.
void tst_SwitchInTwoApplications::shadow()
{
    QFETCH(qreal, ratio);
    QFETCH(QImage::Format, format);
    const auto surface = [&] {
        QImage image = test::canvas(size, ratio).convertToFormat(format);
        image.setDevicePixelRatio(ratio);
        return image;
    };
    Switch control;
    dress(control);
    control.setAttribute(Qt::WA_PendingResizeEvent, false); // render() must not deliver it
    for (const bool resized : {false, true}) {
        if (resized) {
            QResizeEvent event(size, QSize());
            QCoreApplication::sendEvent(&control, &event);
        }
        QImage actual = surface();
        control.render(&actual, QPoint(), QRegion(), QWidget::RenderFlags());
        QImage expected = surface();
        QPainter painter(&expected);
        test::paint(painter, dressed(resized));
        painter.end();
        QVERIFY(test::sameImage(actual, expected));
    }
}

int main(int argc, char** argv)
{
    const QTemporaryDir runtimeDir; // or Qt warns of a missing one within the first function
    qputenv("XDG_RUNTIME_DIR", runtimeDir.path().toLocal8Bit());
    tst_SwitchInTwoApplications instance(argc, argv);
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&instance, argc, argv);
}

#include "tst_SwitchInTwoApplications.moc"
