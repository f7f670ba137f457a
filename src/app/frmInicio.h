#pragma once

#include <QWidget>

#include <chrono>
#include <functional>

class QLabel;

/// The start screen.
class frmInicio : public QWidget
{
    Q_OBJECT

public:
    frmInicio();

    /// Shows itself for `plazo`, counted from now. `tarea`, when given, runs meanwhile with its
    /// notice visible; one that takes longer than `plazo` is followed by no further wait.
    void mostrarDurante(std::chrono::milliseconds plazo, const std::function<void()> &tarea);

protected:
    void paintEvent(QPaintEvent *evento) override;

private:
    QLabel *m_lblAct;
};
