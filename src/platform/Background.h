#pragma once

namespace platform {

// Makes the calling thread give way to all others from now on.
void work_in_background();

}  // namespace platform
