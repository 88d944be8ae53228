#pragma once

#include <QWidget>

class Journal;

/// A list that is scrolled by dragging it, with an indicator that is lit while it moves.
class IndicatorScene : public QWidget
{
    Q_OBJECT

public:
    explicit IndicatorScene(Journal& journal);

private:
    bool m_moves = false;
};
