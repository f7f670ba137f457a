#pragma once

#include <QStringList>

class cFecha;

/// The print request: which return, which copies, with which presentation date. Plain values; the
/// caller sets the keys and the model, the print screen or command the rest.
class cImOf
{
public:
    qint32 FECHAPRE() const { return m_fechapre; } ///< presentation date, yyyymmdd; 0 none
    void FECHAPRE(qint32 fecha) { m_fechapre = fecha; }
    qint32 CSDE() const { return m_csde; } ///< key of the return
    void CSDE(qint32 codigo) { m_csde = codigo; }
    qint32 CSCO() const { return m_csco; } ///< key of its declarant
    void CSCO(qint32 codigo) { m_csco = codigo; }
    QString MODELO() const { return m_modelo; } ///< "430" or "480"
    void MODELO(const QString &modelo) { m_modelo = modelo; }
    QString COPIAADM() const { return m_copiaadm; } ///< "X" or empty
    void COPIAADM(const QString &marca) { m_copiaadm = marca; }
    QString COPIAINT() const { return m_copiaint; } ///< "X" or empty
    void COPIAINT(const QString &marca) { m_copiaint = marca; }
    QString TIPOIMP() const { return m_tipoimp; } ///< "O" official, "B" draft
    void TIPOIMP(const QString &tipo) { m_tipoimp = tipo; }

    /// Official form with both copies, or a draft with none.
    void PedirOficial();
    void PedirBorrador();
    /// Whether there is anything to print.
    bool HayCopias() const;

private:
    qint32 m_fechapre = 0;
    qint32 m_csde = 0;
    qint32 m_csco = 0;
    QString m_modelo;
    QString m_copiaadm;
    QString m_copiaint;
    QString m_tipoimp;
};

/// Codes of the printed copies.
inline constexpr QStringView CopiaAdministracion = u"AD";
inline constexpr QStringView CopiaInteresado = u"IT";
inline constexpr QStringView CopiaBorrador = u"BO";

/// The copies that a request asks for, in printing order: the draft alone, or the administration's
/// before the interested party's. Empty when the model is not one that can be printed.
QStringList copiasPedidas(const cImOf &peticion);

/// Proposed name of a PDF: "430_2026-01_A58818501_AD.pdf", or "480_2026_A58818501_AD-IT.pdf" with
/// several copies in it. Characters that a file name cannot hold become "_".
QString nombrePdf(const QString &modelo, int ejercicio, int periodo, const QString &nif,
                  const QStringList &copias);

/// The earliest presentation date, yyyymmdd; there is no latest one.
inline constexpr qint32 PrimeraFechaPresentacion = 20020101;

/// Outcome of checking a presentation date.
struct FechaPresentacion
{
    qint32 fecha = 0; ///< yyyymmdd; 0 when it was refused
    QString titulo; ///< title and text of the warning, in the session's language; empty when valid
    QString mensaje;

    bool valida() const { return fecha != 0; }
};

/// Reads `texto` in the order of `fechas`: a date of the calendar, not before the earliest.
FechaPresentacion comprobarFechaPresentacion(const QString &texto, const cFecha &fechas);
