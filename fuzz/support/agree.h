#pragma once

#include "plot/series_store.h"

#include <QStringList>

/// Each ends the program with a message if what a reader gave is not what the literal reader gave.
/// `what` tells which result that is.
void must_agree(const char* what, const QString& read, const QString& literal);
void must_agree(const char* what, const QStringList& read, const QStringList& literal);
void must_agree(const char* what, int read, int literal);

/// Two doubles agree if all their bits do, or if both are no number.
void must_agree(const char* what, double read, double literal);
void must_agree(const char* what, const QList<double>& read, const QList<double>& literal);
void must_agree(const series_store& read, const series_store& literal);
