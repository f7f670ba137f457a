#pragma once

#include <QMdiArea>
#include <QMdiSubWindow>

class PantallaBase;

/// Frame of a screen inside the main window, with its menu in the session's language.
class MarcoInterior : public QMdiSubWindow
{
    Q_OBJECT

public:
    explicit MarcoInterior(PantallaBase *pantalla);

    /// Shows itself in the middle of `libre`: as large as its screen asks for, or nearly filling
    /// it when `amplia`. Where there is no room for it, it is maximised.
    void mostrarEn(const QRect &libre, bool amplia);
    /// Shows itself where another frame stands, and as large.
    void mostrarEnLugarDe(const QMdiSubWindow &otro);

protected:
    void changeEvent(QEvent *evento) override;

private:
    void traducirMenu();
};

/// The area that holds the screens, with the program's emblem on a calm background.
class FondoMdi : public QMdiArea
{
    Q_OBJECT

public:
    explicit FondoMdi(QWidget *padre = nullptr);

protected:
    void changeEvent(QEvent *evento) override;
    void paintEvent(QPaintEvent *evento) override;
};
