#pragma once

#include "declarations/Pantalla480.h"

#include <QList>

#include <optional>

class QLabel;

/// A page with the boxes of its classes of insurance, two columns, from the table Clases480.
class PaginaClases : public Pantalla480
{
    Q_OBJECT

protected:
    PaginaClases(const QString &nombre, Msj titulo, bool primera, Pantalla anterior,
                 Pantalla siguiente, QWidget *padre);

    void Anadir_captions() override;
    void PresentaDatos() override;
    void showEvent(QShowEvent *evento) override;

private:
    struct Linea
    {
        int clase;
        QLabel *etiqueta;
        CajaImporte *cajas[2];
    };

    int crearLinea(QGridLayout *rejilla, int fila, int clase);

    QLabel *m_columnas[2];
    QList<Linea> m_lineas;
    QList<std::pair<QLabel *, Msj>> m_grupos;
};

/// First page of a 480: classes 1 to 11. Loads a stored return when the summary has just opened it.
class FrmDatos480a : public PaginaClases
{
    Q_OBJECT

public:
    explicit FrmDatos480a(QWidget *padre = nullptr);

protected:
    void PresentaDatos() override;

private:
    QLabel *m_lblPorRepartir; ///< what the months declared, and what of it is in no class yet
    std::optional<double> m_mensuales; ///< their bases, cents; nothing when there are none
};

/// Second page of a 480: classes 12 to 23.
class FrmDatos480b : public PaginaClases
{
    Q_OBJECT

public:
    explicit FrmDatos480b(QWidget *padre = nullptr);
};
