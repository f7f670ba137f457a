#pragma once

#include <QMdiArea>

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
