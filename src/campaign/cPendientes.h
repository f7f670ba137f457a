#pragma once

#include "declarants/cDecResumen.h"
#include "printing/cImprimirVarias.h"

#include <QDate>
#include <QList>
#include <QString>

#include <optional>
#include <utility>

/// How a declarant stands with the return that everybody has to file.
enum class EstadoPendiente {
    Guardada,
    Pendiente,
    FaltaAnterior,
    Danada, ///< what is stored of the declarant, or of the return, is not what was saved
};

/// The state for the user, in the session's language.
QString textoEstado(EstadoPendiente estado);

struct DeclarantePendiente
{
    qint32 csco = 0;
    QString dni;
    QString nombre;
    qint32 csde = 0; ///< 0 while the return is not stored
    double importe = 0; ///< cents, of the stored return
    QList<MesSinDeclarar>
        faltan; ///< months before it without a 430, the first declared one being the start
    bool danada = false;

    bool conImporte() const { return csde != 0 && !danada; }
    EstadoPendiente estado() const
    {
        if (danada)
            return EstadoPendiente::Danada;
        if (csde != 0)
            return EstadoPendiente::Guardada;
        return faltan.isEmpty() ? EstadoPendiente::Pendiente : EstadoPendiente::FaltaAnterior;
    }
};

/// The campaign: every declarant and how it stands with one month's 430, or with a year's 480.
class cPendientes
{
public:
    /// The last month that had ended on `hoy`, no later than the session's bounds.
    static CabeceraListada UltimaTerminada(const QDate &hoy);

    const CabeceraListada &CABECERA() const { return m_cabecera; } ///< the return looked at
    /// Month 1 to 12 of an exercise, or its annual return for 0.
    void CABECERA(qint16 ejercicio, int mes);
    qint32 CSCO() const { return m_csco; } ///< key of the selected declarant
    void CSCO(qint32 codigo) { m_csco = codigo; }

    /// Whether there can be such a return.
    bool DentroDeLimites() const;
    /// Every declarant, by name.
    QList<DeclarantePendiente> Cargar() const;
    /// One of them as it is stored now; nothing when it is not there any more.
    std::optional<DeclarantePendiente> CargarDeclarante(qint32 csco) const;
    /// A sheet to be filled in and read back (cImportarDeclaraciones): those of `lista` that have
    /// the return not stored, and how many they are.
    std::pair<QByteArray, qsizetype> Plantilla(const QList<DeclarantePendiente> &lista) const;
    /// Those of `lista` that have the return stored, to be printed.
    QList<FilaImprimir> ParaImprimir(const QList<DeclarantePendiente> &lista) const;
    /// Adds a row at its place by name.
    static void Colocar(QList<DeclarantePendiente> &lista, DeclarantePendiente fila);

private:
    CabeceraListada m_cabecera;
    qint32 m_csco = 0;
};
