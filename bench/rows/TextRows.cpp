#include "Rows.h"
#include "Shown.h"

#include <BreadCrumbsWidget.h>
#include <ui/LineEdit.h>

#include <QApplication>
#include <QIntValidator>
#include <QKeyEvent>

#include <memory>

namespace bench {

namespace {

/// As an application's style sheet would colour invalid input.
const char* const styleSheet = "QLineEdit { border: 1px solid gray; }"
                               "QLineEdit[inputValid=\"false\"] { color: red; }";

/// For as long as it lives, the application has a style sheet.
class StyleSheet
{
public:
    explicit StyleSheet(bool wanted)
    {
        if (wanted)
            qApp->setStyleSheet(QString::fromLatin1(styleSheet));
    }
    ~StyleSheet()
    {
        qApp->setStyleSheet(QString());
    }
    Q_DISABLE_COPY(StyleSheet)
};

void press(QWidget& widget, int key, const QString& text)
{
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(&widget, &event);
    deliverEvents();
}

/// A digit typed, and taken back.
template <typename Edit>
Work type(bool styled)
{
    const auto sheet = std::make_shared<StyleSheet>(styled);
    const auto edit = std::make_shared<Shown<Edit>>(QSize(200, 30));
    (*edit)->setValidator(new QIntValidator(0, 9, &**edit));
    (*edit)->setFocus();
    deliverEvents();
    return [sheet, edit] {
        press(**edit, Qt::Key_7, QStringLiteral("7"));
        press(**edit, Qt::Key_Backspace, QString());
    };
}

Row typeRow(const QString& name, bool styled)
{
    return {name,
            [styled] { return type<ui::LineEdit>(styled); },
            QStringLiteral("QLineEdit"),
            [styled] { return type<QLineEdit>(styled); },
            {}};
}

Work changeDirectory()
{
    const auto crumbs = std::make_shared<Shown<BreadCrumbsWidget>>(QSize(400, 40));
    (*crumbs)->setRootPath(QStringLiteral("/data"));
    return [crumbs] {
        for (const char* path : {"/data/a/b/c/d", "/data/a/b/c"}) {
            (*crumbs)->changeDir(QLatin1String(path));
            deliverEvents();
        }
    };
}

} // namespace

QVector<Row> textRows()
{
    return {
        typeRow(QStringLiteral("line edit, a key and a backspace"), false),
        typeRow(QStringLiteral("line edit with a style sheet, a key and a backspace"), true),
        {QStringLiteral("bread crumbs, two changes of the directory"), changeDirectory, {}, {}, {}},
    };
}

} // namespace bench
