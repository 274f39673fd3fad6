#pragma once

// Quality-of-service classes for queues and threads.

#include "vistrel_declarations.h"

VISTREL_ENUM(unsigned int, qos_class_t){
    QOS_CLASS_USER_INTERACTIVE = 0x21, QOS_CLASS_USER_INITIATED = 0x19,
    QOS_CLASS_DEFAULT = 0x15,          QOS_CLASS_UTILITY = 0x11,
    QOS_CLASS_BACKGROUND = 0x09,       QOS_CLASS_UNSPECIFIED = 0x00,
};
