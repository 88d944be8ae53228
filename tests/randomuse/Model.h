#pragma once

#include "Values.h"

#include <QDebug>
#include <QVector>

#include <functional>

namespace test {

/// One use of a widget: which of a model's actions, and the seed of the values that it draws.
struct Command
{
    int action;
    quint32 argument;
};

using Commands = QVector<Command>;

/**
 * A widget, what can be done to it, and what it must look like from outside afterwards.
 *
 * The actions keep a small model of the expected state up to date beside the widget; check()
 * compares the two. What is found broken is a text, since a failure is to be read by a person.
 */
class Model
{
    Q_DISABLE_COPY(Model)

public:
    using Function = std::function<void(Values&)>;

    struct Action
    {
        QString name;
        int weight; ///< How often it is picked, beside the others' weights.
        Function run;
    };

    virtual ~Model();

    /// A sequence of actions, picked by their weights.
    Commands commands(quint32 seed, int count) const;
    const QVector<Action>& actions() const;
    /// -1 if there is no such action.
    int actionNamed(const QString& name) const;

    void perform(const Command& command);

    /// Makes what the actions need, before each of them.
    virtual void prepare();
    /// Compares the widget with the model by expect() and compare().
    virtual void check() = 0;

    /// Whether what the actions do makes Qt or the library say \a warning.
    virtual bool expectsWarning(const QString& warning) const;

    /// The first invariant found broken since the last call; empty if all were kept.
    QString takeFailure();

    void add(const QString& name, int weight, const Function& run);
    void expect(bool kept, const QString& invariant);

    template <typename Actual, typename Expected>
    void compare(const QString& what, const Actual& actual, const Expected& expected)
    {
        if (actual == expected)
            return;
        QString text;
        QDebug(&text) << "is" << actual << "instead of" << expected;
        expect(false, what + QLatin1Char(' ') + text);
    }

protected:
    Model();

private:
    QVector<Action> m_actions;
    int m_totalWeight = 0;
    QString m_failure;
};

} // namespace test
