#pragma once

#include <quorvel/ParamMap.h>

#include <QDomDocument>
#include <QString>

namespace quorvel
{

/// Reads `response` into a document and puts the root's name and version into `result`. A null
/// document if the text is not well-formed; `result` is then untouched.
QDomDocument readResponse(const QString& response, ParamMap& result);

/// Adds one entry per element of `object`: the element's name and text, below the object's name.
void insertLeaves(const QDomElement& object, ParamMap& result);

} // namespace quorvel
