;;; Counts the block references of the drawing by block name and prints a sorted table.
(defun count-blocks (/ ss i name counts pair)
  (if (setq ss (ssget "X" '((0 . "INSERT"))))
    (progn
      (setq i 0)
      (repeat (sslength ss)
        (setq name (cdr (assoc 2 (entget (ssname ss i))))
              pair (assoc name counts)
              i (1+ i))
        (setq counts (if pair
                       (subst (cons name (1+ (cdr pair))) pair counts)
                       (cons (cons name 1) counts))))))
  (vl-sort counts '(lambda (a b) (< (car a) (car b)))))

(defun c:blkcount (/ total)
  (setq total 0)
  (foreach pair (count-blocks)
    (princ (strcat (car pair) "\t" (itoa (cdr pair)) "\n"))
    (setq total (+ total (cdr pair))))
  (princ (strcat "TOTAL\t" (itoa total) "\n"))
  (princ))
(c:blkcount)
