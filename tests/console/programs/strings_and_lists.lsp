;;; String and list utilities as a drawing office keeps them in its library.

;; Splits TEXT at every DELIM (a one-character string): ("a" "b" "")
(defun str-split (text delim / pos out)
  (while (setq pos (vl-string-search delim text))
    (setq out (cons (substr text 1 pos) out)
          text (substr text (+ pos 2))))
  (reverse (cons text out)))

;; Joins the strings of LST with SEP between them.
(defun str-join (lst sep / out)
  (setq out (car lst))
  (foreach s (cdr lst) (setq out (strcat out sep s)))
  (if out out ""))

;; Every occurrence of OLD in TEXT replaced by NEW.
(defun str-replace-all (new old text / pos)
  (setq pos 0)
  (while (setq pos (vl-string-search old text pos))
    (setq text (vl-string-subst new old text pos)
          pos (+ pos (strlen new))))
  text)

;; The list without repeated items, first occurrences kept.
(defun unique (lst / out)
  (foreach x lst (if (not (member x out)) (setq out (cons x out))))
  (reverse out))

(setq fields (mapcar '(lambda (s) (vl-string-trim " " s)) (str-split " DUCT-200 ; PIPE-50;DUCT-200 ;  VAV-3 " ";")))
(princ (vl-prin1-to-string fields)) (terpri)
(princ (str-join (vl-sort (unique fields) '<) ",")) (terpri)
(princ (str-replace-all "mm" "in" "12in x 8in")) (terpri)
(princ (vl-position "PIPE-50" fields)) (terpri)
(princ (vl-prin1-to-string (vl-remove-if '(lambda (s) (wcmatch s "DUCT*")) fields))) (terpri)
(princ (vl-prin1-to-string (vl-member-if '(lambda (s) (= (substr s 1 1) "V")) fields))) (terpri)
(princ (vl-every 'numberp '(1 2.5 3))) (terpri)
(princ (vl-some '(lambda (x) (and (> x 10) x)) '(4 12 30))) (terpri)
(princ (apply 'max (mapcar 'strlen fields))) (terpri)
(princ (vl-prin1-to-string (vl-sort '(3.5 1 2 1) '<=))) (terpri)
(princ (vl-string-right-trim "0" (rtos 2.5 2 4))) (terpri)
(princ (apply 'and (list 1 "a" T))) (terpri)
(princ ((eval '<=) 1 1)) (terpri)
(princ (vl-prin1-to-string (vl-filename-base "/jobs/plan-3.dwg"))) (terpri)
(princ (logand 13 (logior 2 8))) (terpri)
(princ)
