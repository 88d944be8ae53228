#pragma once

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QLocale;
QT_END_NAMESPACE

/**
 * Makes the application speak the language of \a locale: its own texts, the library's, those of the
 * stand-in keypad, and Qt's.
 *
 * A language that the gallery has not been translated into is left alone altogether, rather than
 * mixed with English.
 */
void installTranslations(const QLocale& locale);
