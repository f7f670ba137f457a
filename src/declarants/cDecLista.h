#pragma once

#include "core/Modos.h"

#include <QList>
#include <QString>

#include <optional>

using namespace Qt::StringLiterals;

/// A declarant in a list. The counters are the returns really stored.
struct DeclaranteListado
{
    qint32 csco = 0;
    QString dni;
    QString nombre;
    QString nommun;
    QString nomprov; ///< in the session's language
    qint32 num430 = 0;
    qint32 num480 = 0;
    /// What is stored of it is not what was saved: only what is sure is here, a word in `nommun`.
    bool danado = false;
};

/// One of the declarants last worked on.
struct DeclaranteReciente
{
    qint32 csco = 0;
    QString dni;
    QString nombre;
};

/// State of the declarant list.
class cDecLista
{
public:
    static constexpr quint8 PorDni = 1;
    static constexpr quint8 PorNombre = 2;

    qint32 CSCO() const { return m_csco; } ///< key of the selected declarant
    void CSCO(qint32 codigo) { m_csco = codigo; }
    qint32 NUMDECLASEL() const { return m_numdeclasel; } ///< declarants listed
    void NUMDECLASEL(qint32 numero) { m_numdeclasel = numero; }
    QString MODO() const { return m_modo; } ///< "C" open, "E" delete
    void MODO(const QString &modo) { m_modo = modo; }
    quint8 ORDEN() const { return m_orden; }
    void ORDEN(quint8 orden) { m_orden = orden; }

    /// Every declarant, in the order ORDEN; sets NUMDECLASEL.
    QList<DeclaranteListado> CargarDeclarantes();
    /// Puts rows already loaded into the order ORDEN.
    void Ordenar(QList<DeclaranteListado> &lista) const;
    /// Adds a row at its place in the order ORDEN.
    void Colocar(QList<DeclaranteListado> &lista, DeclaranteListado fila) const;
    /// One row as it is stored now; nothing when the declarant is not there any more.
    static std::optional<DeclaranteListado> CargarDeclarante(qint32 csco);
    /// Up to four, the last saved first.
    static QList<DeclaranteReciente> UltimosDeclarantes();

private:
    QString clave(const DeclaranteListado &fila) const;

    qint32 m_csco = 0;
    qint32 m_numdeclasel = 0;
    QString m_modo = Modo::Consulta;
    quint8 m_orden = PorDni;
};
