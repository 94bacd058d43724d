#include "coipcmessage.h"

coIpcMessage::~coIpcMessage() = default;
