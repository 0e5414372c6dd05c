#pragma once

#include "tests/support/literal_reader.h"

/// What reading one basin of a BEK file, and one curve of a DKL file, must give. As
/// `read_literally`, this shares no code with the readers. `log` holds the warnings.
literal_reading read_bek_literally(const QString& path, const QString& item);
literal_reading read_dkl_literally(const QString& path, const QString& item);

/// The same for a device, which must be open in text mode.
literal_reading read_bek_literally(QIODevice& text, const QString& item);
literal_reading read_dkl_literally(QIODevice& text, const QString& item);
