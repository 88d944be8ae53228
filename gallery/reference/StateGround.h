#pragma once

#include <QWidget>

struct ClassState;

/// The ground that a widget stands on in the picture of its class, with the palette of the state.
class StateGround : public QWidget
{
    Q_OBJECT

public:
    explicit StateGround(const ClassState& state, QWidget* parent = nullptr);
};
