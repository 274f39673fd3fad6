#pragma once

#include <dispatch/dispatch_main.h>
#include <dispatch/object.h>
#include <dispatch/queue.h>
#include <dispatch/semaphore.h>
#include <dispatch/time.h>
