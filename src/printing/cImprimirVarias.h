#pragma once

#include "declarants/cDecResumen.h"
#include "printing/cImOf.h"

#include <QList>
#include <QString>

#include <utility>

/// A stored return to be printed among others, and what became of it.
struct FilaImprimir
{
    enum Estado { Pendiente, Hecha, NoHecha };

    qint32 csco = 0;
    qint32 csde = 0;
    QString dni;
    QString nombre;
    CabeceraListada cabecera;
    Estado estado = Pendiente;
    QString fichero{}; ///< the PDF that it went into
    QString motivo{}; ///< why it was not made, in the session's language
    bool existia = false; ///< its file was there when the user was asked
};

/// Many returns to be printed in one go with the same options. Whoever has them hands them over
/// here; campaign/ImpresionVarias.h prints them.
class cImprimirVarias
{
public:
    const QList<FilaImprimir> &filas() const { return m_filas; }
    QList<FilaImprimir> &filas() { return m_filas; }
    /// The returns that the screen asked for next is to show.
    void Pedir(QList<FilaImprimir> filas);
    /// Whether there are such ones that no screen has taken yet.
    bool HayPedidas() const { return m_pedidas; }
    bool TomarPedidas() { return std::exchange(m_pedidas, false); }

    /// Form, copies and date for all of them; its keys are not used.
    const cImOf &PETICION() const { return m_peticion; }
    cImOf &PETICION() { return m_peticion; }

    qsizetype cuantas(FilaImprimir::Estado estado) const;
    /// Name of the PDF of one of them.
    QString nombreFichero(const FilaImprimir &fila) const;
    /// Proposed name of one PDF with all of them: what they have in common.
    QString nombreConjunto() const;
    /// Looks which of their files are in `carpeta` already; how many there are.
    qsizetype MirarExistentes(const QString &carpeta);
    /// Forgets what became of them.
    void Empezar();

private:
    QStringList copias(const FilaImprimir &fila) const;

    QList<FilaImprimir> m_filas;
    bool m_pedidas = false;
    cImOf m_peticion;
};
