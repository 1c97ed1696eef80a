-- Local changes are found by sync_status = 'pending'; nothing used the queue.
DROP TABLE IF EXISTS sync_queue;
