#pragma once

class QTableView;

/// Look and keyboard of every list grid: whole rows, one selected, nothing edited, even row
/// colours, Tab leaves the grid.
void prepararTabla(QTableView *tabla);
