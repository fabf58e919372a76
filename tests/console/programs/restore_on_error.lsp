;;; The usual shape of a command: settings saved, changed, and restored by a local *error*
;;; handler when the command fails half-way.
(defun c:scale-notes (/ *error* saved factor)
  (defun *error* (msg)
    (mapcar 'setvar '("OSMODE" "CMDECHO") saved)
    (princ (strcat "\nOSMODE " (itoa (getvar "OSMODE")) " restored after: " msg))
    (princ))
  (setq saved (mapcar 'getvar '("OSMODE" "CMDECHO")))
  (setvar "OSMODE" 0)
  (setvar "CMDECHO" 0)
  (setq factor (/ 10 (length nil))) ; the bug this routine ships with
  (princ factor))
(setvar "OSMODE" 37)
(c:scale-notes)
