#include "models/CustomListModel.h"
