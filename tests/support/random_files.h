#pragma once

#include <QByteArray>
#include <QString>

class QRandomGenerator;

/// The bytes of a made-up result file of the kind that `name` says: mostly well-formed lines, among
/// them every way of being wrong that the rules of the formats tell apart, with all kinds of line
/// ends, cut off anywhere.
QByteArray random_file(const QString& name, QRandomGenerator& random);

/// The lines from which random_file makes a WEL file (any other kind of file has such lines, too),
/// a BEK file and a DKL file. A line may be several, each but the last with its line end.
QByteArray random_wel_lines(QRandomGenerator& random);
QByteArray random_bek_lines(QRandomGenerator& random);
QByteArray random_dkl_lines(QRandomGenerator& random);
