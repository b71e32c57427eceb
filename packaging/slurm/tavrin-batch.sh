#!/usr/bin/env bash
# A batch of pictures as a Slurm job array:
#
#   sbatch --array=1-6 tavrin-batch.sh PORTRAITS BACKGROUNDS OUT [more options of tavrin-cli batch]
#
# The folders are seen by all nodes. Task K of N makes every Nth picture, K first; the same line again makes what is
# missing. When the array is through, join what the tasks tell:
#
#   tavrin-cli report merge --out report.jsonl OUT/reports/part-*.jsonl
#
# TAVRIN_CLI names the program where it is not in the path.
#SBATCH --job-name=tavrin
#SBATCH --cpus-per-task=2
#SBATCH --mem=1G
#SBATCH --requeue
#SBATCH --open-mode=append
#SBATCH --output=tavrin-%A_%a.log
# A minute before the time is up the pictures in hand are finished and the task ends cleanly.
#SBATCH --signal=B:TERM@60
set -euo pipefail

if [ $# -lt 3 ] || [ -z "${SLURM_ARRAY_TASK_ID:-}" ]; then
    echo "Usage: sbatch --array=1-N $0 PORTRAITS BACKGROUNDS OUT [options of tavrin-cli batch]" >&2
    exit 2
fi
portraits=$1 backgrounds=$2 out=$3
shift 3
mkdir -p "$out/reports"

# exec: the signals above reach the program itself.
exec "${TAVRIN_CLI:-tavrin-cli}" batch --foregrounds "$portraits" --backgrounds "$backgrounds" --out "$out" \
    --shard auto --report "$out/reports/part-$SLURM_ARRAY_TASK_ID.jsonl" "$@"
