#pragma once

#include <QVector>

#include <vector>

/// Reads columns, which count from one and stand in rising order, of a file with three lines of
/// heading.
std::vector<QVector<double>> read_columns(const char* path, const std::vector<int>& columns);
