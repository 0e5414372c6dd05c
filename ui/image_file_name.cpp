#include "ui/image_file_name.h"

QString image_file_of_hydrograph(const QString& path)
{
    // Without a "." this is all of the path.
    return path.first(path.contains(u'.') ? path.lastIndexOf(u'.') : path.size()) + u".png";
}

QString image_file_of_curve(const QString& path, const QString& curve_name)
{
    return path.first(path.lastIndexOf(u'/') + 1) + curve_name + u".png";
}
