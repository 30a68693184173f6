// Reads meshes in the 2dm text format:
//
//   MESH2D                       the first card
//   ND  id x y z                 a node
//   E3T id n1 n2 n3 material     a triangle of three node ids
//   NS  n1 n2 ... -nk name       a nodestring; the negative id ends it, and only then a name or a
//                                number may follow. A string may go on over several NS cards.
//   # ...                        a comment; so is a line that begins with an exclamation mark
//
// Cards may stand in any order behind the first. Other cards are passed over and named to the
// user, but elements other than triangles are refused, since a hole would be left in the mesh.
#pragma once

#include <string>

#include "setup/mesh/Mesh.h"

namespace setup {

/// The mesh of the file, as it stands there: orientation and order are not touched.
/// @throws BaseException for an unreadable or empty file, a card that cannot be understood, ids
///         that are used twice, node ids that are not defined and unended nodestrings; the message
///         names the file, the line and what is wrong.
Mesh readMesh2dm(const std::string& file);

}  // namespace setup
