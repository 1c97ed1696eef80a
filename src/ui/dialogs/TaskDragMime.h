#pragma once

/// What a dragged task carries. Surfaces read the row id, the task tree the UID.
namespace TaskDragMime {

inline constexpr char kTaskUid[] = "application/x-quillon-task-uid";
inline constexpr char kTaskRowId[] = "application/x-quillon-task-id";

} // namespace TaskDragMime
