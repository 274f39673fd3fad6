#pragma once

#include <dispatch/object.h>
#include <dispatch/time.h>
#include <sys/qos.h>

VISTREL_DISPATCH_OBJECT(dispatch_queue);
VISTREL_DISPATCH_OBJECT(dispatch_queue_attr);

typedef qos_class_t dispatch_qos_class_t;

// A null attribute makes a serial queue.
#define DISPATCH_QUEUE_SERIAL nullptr

VISTREL_EXTERN_C_BEGIN
dispatch_queue_t dispatch_get_main_queue(void);
dispatch_queue_t dispatch_queue_create(const char* label, dispatch_queue_attr_t attr);
VISTREL_MACOS(10.10)
dispatch_queue_attr_t dispatch_queue_attr_make_with_qos_class(dispatch_queue_attr_t attr,
                                                              dispatch_qos_class_t qos_class,
                                                              int relative_priority);
void dispatch_async(dispatch_queue_t queue, dispatch_block_t block);
void dispatch_sync(dispatch_queue_t queue, dispatch_block_t block);
void dispatch_after(dispatch_time_t when, dispatch_queue_t queue, dispatch_block_t block);
VISTREL_EXTERN_C_END
