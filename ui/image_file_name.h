#pragma once

#include <QString>

/// The name of the picture of a hydrograph: that of its file, with everything from the last "."
/// replaced by ".png". The last "." of the whole path counts, even if it stands in a folder's name.
QString image_file_of_hydrograph(const QString& path);

/// The name of the picture of a characteristic curve: the curve's name and ".png", in the folder of
/// its file.
QString image_file_of_curve(const QString& path, const QString& curve_name);
