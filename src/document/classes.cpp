#include "document/classes.h"

namespace mxd {

const Class_id_scanner& known_class_scanner() {
  static const Class_id_scanner scanner(class_ids_of<Searched_classes>());
  return scanner;
}

}  // namespace mxd
