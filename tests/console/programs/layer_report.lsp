;;; Writes a report of the drawing's layers to layers.csv in the current folder:
;;; name, colour, linetype, and whether the layer is off or frozen.
(defun layer-state (rec / flags)
  (setq flags (cdr (assoc 70 rec)))
  (cond ((= 1 (logand flags 1)) "frozen")
        ((minusp (cdr (assoc 62 rec))) "off")
        (T "on")))

(defun c:layrep (/ f rec n)
  (setq f (open "layers.csv" "w" "utf8") n 0)
  (write-line "name;color;linetype;state" f)
  (setq rec (tblnext "LAYER" T))
  (while rec
    (write-line (strcat (cdr (assoc 2 rec)) ";" (itoa (abs (cdr (assoc 62 rec)))) ";"
                        (cdr (assoc 6 rec)) ";" (layer-state rec)) f)
    (setq n (1+ n) rec (tblnext "LAYER")))
  (close f)
  (princ (strcat (itoa n) " layers written to " (findfile "layers.csv")))
  (princ))
(c:layrep)
