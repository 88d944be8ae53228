#include "Painting.h"
#include "Rows.h"
#include "Shown.h"

#include <Animator.h>
#include <Switch.h>

#include <QAnimationDriver>
#include <QCheckBox>
#include <QPainter>

namespace bench {

namespace {

const QSize plainSize(56, 40);
const QSize labelledSize(160, 40);
constexpr int frameTime = 16; // milliseconds

struct Look
{
    QString name;
    QString text;
    bool on;

    QSize size() const
    {
        return text.isEmpty() ? plainSize : labelledSize;
    }
};

template <typename Button>
std::shared_ptr<Button> button(const Look& look)
{
    auto result = std::make_shared<Button>(look.text);
    result->resize(look.size());
    result->setChecked(look.on);
    return result;
}

/// The thumb's shadow, as an image to be drawn.
QPixmap shadow()
{
    QPixmap pixmap(29, 29);
    pixmap.fill(QColor(0, 0, 0, 70));
    return pixmap;
}

/// The track, the shadow and the thumb where a switch of the default height has them.
Work bareSwitch(const Look& look)
{
    const double centre = look.on ? 35 : 17;
    return draw(look.size(), [look, centre, pixmap = shadow()](QPainter& painter) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(0, 0, 0, look.on ? 128 : 64));
        painter.setRenderHint(QPainter::Antialiasing);
        painter.drawRoundedRect(QRectF(8, 10, 36, 16), 8, 8);
        painter.setRenderHint(QPainter::Antialiasing, false);
        painter.drawPixmap(QPointF(centre - 14.5, 4.5), pixmap);
        painter.setBrush(Qt::black);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.drawEllipse(QRectF(centre - 11.5, 6.5, 23, 23));
        painter.setRenderHint(QPainter::Antialiasing, false);
        if (!look.text.isEmpty()) {
            painter.setPen(Qt::black);
            painter.drawText(QRect(52, 0, 108, 40), Qt::AlignLeft | Qt::AlignVCenter, look.text);
        }
    });
}

Row paintRow(const Look& look)
{
    return {look.name, [look] { return paint(button<Switch>(look)); }, QStringLiteral("QCheckBox"),
            [look] { return paint(button<QCheckBox>(look)); }, [look] { return bareSwitch(look); }};
}

/// In the middle of a transition.
Work paintFrame()
{
    const auto control = button<Switch>({{}, {}, true});
    for (Animator* animator : control->findChildren<Animator*>()) {
        animator->start();
        animator->pause();
        animator->setCurrentTime(animator->duration() / 2);
    }
    return paint(control);
}

Row frameRow()
{
    return {QStringLiteral("switch, a frame of a transition"), paintFrame,
            QStringLiteral("QCheckBox"),
            [] {
                return paint(button<QCheckBox>({{}, {}, true}));
            },
            [] {
                return bareSwitch({{}, {}, true});
            }};
}

/// Time for animations, which goes on by frames.
class FrameDriver : public QAnimationDriver
{
public:
    FrameDriver()
    {
        install();
    }
    ~FrameDriver() override
    {
        uninstall();
    }
    Q_DISABLE_COPY(FrameDriver)

    void nextFrame()
    {
        m_elapsed += frameTime;
        advance();
    }
    qint64 elapsed() const override
    {
        return m_elapsed;
    }

protected:
    void start() override
    {
        m_elapsed = 0;
        QAnimationDriver::start();
    }

private:
    qint64 m_elapsed = 0;
};

/// Clicked, and painted until it rests.
template <typename Button>
Work toggle(const Look& look)
{
    const auto driver = std::make_shared<FrameDriver>();
    const auto button = std::make_shared<Shown<Button>>(look.size(), look.text);
    return [driver, button] {
        click(**button);
        while (driver->isRunning()) {
            driver->nextFrame();
            deliverEvents();
        }
    };
}

/// Made wider and narrower again, in turns.
template <typename Button>
Work resize()
{
    const auto button = std::make_shared<Shown<Button>>(plainSize, QString());
    return [button] {
        (*button)->resize((*button)->size() == plainSize ? labelledSize : plainSize);
        deliverEvents();
    };
}

Row toggleRow(const Look& look)
{
    return {look.name,
            [look] { return toggle<Switch>(look); },
            QStringLiteral("QCheckBox"),
            [look] { return toggle<QCheckBox>(look); },
            {}};
}

} // namespace

QVector<Row> switchRows()
{
    return {
        paintRow({QStringLiteral("switch, off"), {}, false}),
        paintRow({QStringLiteral("switch, on"), {}, true}),
        paintRow({QStringLiteral("switch with a label"), QStringLiteral("Wireless"), true}),
        frameRow(),
        toggleRow({QStringLiteral("switch, a click until it rests"), {}, false}),
        toggleRow({QStringLiteral("switch with a label, a click until it rests"),
                   QStringLiteral("Wireless"), false}),
        {QStringLiteral("switch, a resize"),
         resize<Switch>,
         QStringLiteral("QCheckBox"),
         resize<QCheckBox>,
         {}},
    };
}

} // namespace bench
