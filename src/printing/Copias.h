#pragma once

#include <QStringList>

class cImOf;

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
