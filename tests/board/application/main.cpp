#include "Channel.h"
#include "Questions.h"

#include "Palettes.h"
#include "TestApplication.h"

#include <Translations.h>

#include <QApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>

namespace {

void applyAppearance(const QStringList& arguments)
{
    if (arguments.contains(QStringLiteral("dark")))
        QApplication::setPalette(test::darkPalette());
    if (arguments.contains(QStringLiteral("right-to-left")))
        QApplication::setLayoutDirection(Qt::RightToLeft);
    if (arguments.contains(QStringLiteral("german"))) {
        QLocale::setDefault(QLocale(QLocale::German));
        installTranslations(QLocale());
    }
}

QByteArray reply(const QJsonValue& answer)
{
    QJsonObject object;
    if (answer.isUndefined())
        object.insert(QStringLiteral("error"), QStringLiteral("there is no such thing"));
    else
        object.insert(QStringLiteral("answer"), answer);
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

} // namespace

int main(int argc, char* argv[])
{
    test::prepareApplication();
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    test::setUpApplication();
    applyAppearance(QApplication::arguments());

    Questions questions;
    Channel channel(qEnvironmentVariable("BOARD_PORT"));
    QObject::connect(&channel, &Channel::received, &channel, [&](const QByteArray& line) {
        channel.send(reply(questions.answer(QJsonDocument::fromJson(line).array())));
    });
    channel.send(reply(QStringLiteral("ready")));
    return QApplication::exec();
}
